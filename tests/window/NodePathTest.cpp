#include "NodePath.h"

#include <gtest/gtest.h>

using namespace Console;

TEST(NodePath, IsSplitAtBackslashes)
{
    EXPECT_EQ(parseNodePath(L"Log"), NodePath{L"Log"});
    EXPECT_EQ(parseNodePath(L"Engine Settings\\AFP Encoder"), (NodePath{L"Engine Settings", L"AFP Encoder"}));
}

TEST(NodePath, EmptyTextIsTheTopNode)
{
    EXPECT_EQ(parseNodePath(L""), NodePath{});
}

TEST(NodePath, ACaretMakesABackslashPartOfTheName)
{
    EXPECT_EQ(parseNodePath(L"a^\\b\\c"), (NodePath{L"a\\b", L"c"}));
    EXPECT_EQ(parseNodePath(L"^\\"), NodePath{L"\\"});
    EXPECT_EQ(parseNodePath(L"a^^\\b"), (NodePath{L"a^", L"b"}));
    // Before anything else a caret is one.
    EXPECT_EQ(parseNodePath(L"2^3^"), NodePath{L"2^3^"});
}

TEST(NodePath, EmptyNamesAreRefused)
{
    EXPECT_EQ(parseNodePath(L"\\a"), std::nullopt);
    EXPECT_EQ(parseNodePath(L"a\\"), std::nullopt);
    EXPECT_EQ(parseNodePath(L"\\"), std::nullopt);
    EXPECT_EQ(parseNodePath(L"a\\\\b"), std::nullopt);
}

TEST(NodePath, WhatIsFormattedIsParsedBack)
{
    for (const NodePath& path :
         {NodePath{}, NodePath{L"a"}, NodePath{L"a\\b", L"\\", L"c d"}, NodePath{L"^", L"^^\\^"}})
    {
        EXPECT_EQ(parseNodePath(formatNodePath(path)), path);
    }
    EXPECT_EQ(formatNodePath({L"a\\b", L"c"}), L"a^\\b\\c");
}
