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

TEST(NodePath, TwoBackslashesAreOneOfTheName)
{
    EXPECT_EQ(parseNodePath(L"a\\\\b\\c"), (NodePath{L"a\\b", L"c"}));
    EXPECT_EQ(parseNodePath(L"\\\\"), NodePath{L"\\"});
    // Three: one of the name, then the separator.
    EXPECT_EQ(parseNodePath(L"a\\\\\\b"), (NodePath{L"a\\", L"b"}));
}

TEST(NodePath, EmptyNamesAreRefused)
{
    EXPECT_EQ(parseNodePath(L"\\a"), std::nullopt);
    EXPECT_EQ(parseNodePath(L"a\\"), std::nullopt);
    EXPECT_EQ(parseNodePath(L"\\"), std::nullopt);
}

TEST(NodePath, WhatIsFormattedIsParsedBack)
{
    for (const NodePath& path : {NodePath{}, NodePath{L"a"}, NodePath{L"a\\b", L"\\", L"c d"}})
    {
        EXPECT_EQ(parseNodePath(formatNodePath(path)), path);
    }
    EXPECT_EQ(formatNodePath({L"a\\b", L"c"}), L"a\\\\b\\c");
}
