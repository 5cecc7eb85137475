#include "JsonLister.h"
#include "TextLister.h"
#include "Utf8.h"
#include "jsonString.h"

#include <gtest/gtest.h>

using namespace Console;

namespace
{

NodeListing listing(const std::wstring& name)
{
    NodeListing node;
    node.name = name;
    node.image = 1;
    return node;
}

// A top node with a list of two rows and two children, the second of which shows no list.
template <class Lister>
std::wstring listExample()
{
    std::wstring text;
    Lister lister([&](std::wstring_view piece) { text += piece; });

    NodeListing top = listing(L"Top");
    top.columns = {{L"Name", 150}, {L"Value", 60}};
    top.rows = {{{L"Port", L"1099"}, 2}, {{L"A longer name", L""}, -1}};
    NodeListing second = listing(L"Second");
    second.message = L"A web page cannot be shown.";

    lister.beginNode(top);
    lister.beginNode(listing(L"First"));
    lister.endNode();
    lister.beginNode(second);
    lister.endNode();
    lister.endNode();
    return text;
}

} // namespace

TEST(TextLister, IndentsNodesAndAlignsColumns)
{
    EXPECT_EQ(listExample<TextLister>(), L"+ Top\n"
                                         L"  | Name          | Value\n"
                                         L"  | Port          | 1099\n"
                                         L"  | A longer name |\n"
                                         L"  + First\n"
                                         L"  + Second\n"
                                         L"    (A web page cannot be shown.)\n");
}

TEST(TextLister, KeepsARowOnOneLine)
{
    std::wstring text;
    TextLister lister([&](std::wstring_view piece) { text += piece; });
    NodeListing node = listing(L"N");
    node.columns = {{L"C", 10}};
    node.rows = {{{L"one\r\ntwo\tthree"}, 0}};

    lister.beginNode(node);
    lister.endNode();

    EXPECT_EQ(text, L"+ N\n  | C\n  | one  two three\n");
}

TEST(JsonLister, WritesTheWholeTreeAsOneObject)
{
    EXPECT_EQ(listExample<JsonLister>(), LR"({"name": "Top", "image": 1,
  "columns": [{"title": "Name", "width": 150}, {"title": "Value", "width": 60}],
  "rows": [
    {"image": 2, "cells": ["Port", "1099"]},
    {"image": -1, "cells": ["A longer name", ""]}],
  "children": [
  {"name": "First", "image": 1,
    "columns": [],
    "rows": [],
    "children": []},
  {"name": "Second", "image": 1,
    "message": "A web page cannot be shown.",
    "columns": [],
    "rows": [],
    "children": []}]}
)");
}

TEST(JsonString, EscapesWhatJsonDemands)
{
    EXPECT_EQ(jsonString(L""), L"\"\"");
    EXPECT_EQ(jsonString(L"say \"a\\b\""), L"\"say \\\"a\\\\b\\\"\"");
    EXPECT_EQ(jsonString(L"1\r\n2\t3"), L"\"1\\r\\n2\\t3\"");
    EXPECT_EQ(jsonString(std::wstring_view(L"\0\x01\x1f", 3)), L"\"\\u0000\\u0001\\u001f\"");
    EXPECT_EQ(jsonString(L"\x7f"), L"\"\\u007f\"");
    EXPECT_EQ(jsonString(L"Gr\u00fc\u00dfe / \u65e5\u672c"), L"\"Gr\u00fc\u00dfe / \u65e5\u672c\"");
}

TEST(Utf8, EncodesPairsAndReplacesHalves)
{
    EXPECT_EQ(toUtf8(L"a\u00fc\u65e5"), "a\xc3\xbc\xe6\x97\xa5");
    EXPECT_EQ(toUtf8(L"\xd83d\xde00"), "\xf0\x9f\x98\x80");
    EXPECT_EQ(toUtf8(L"x\xd83dy"), "x\xef\xbf\xbdy");
    EXPECT_EQ(toUtf8(L""), "");
}
