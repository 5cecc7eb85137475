#pragma once

#include "console/host/Host.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace Console
{

// What one node shows, copied.
struct NodeListing
{
    struct Column
    {
        std::wstring title;
        int width = 0;
    };
    struct Row
    {
        std::vector<std::wstring> cells; // as many as there are columns
        int image = -1;
    };

    std::wstring name;
    int image = -1;
    std::wstring message; // in place of columns and rows when the node shows no list
    std::vector<Column> columns;
    std::vector<Row> rows;
};

// Takes finished pieces of text.
using Sink = std::function<void(std::wstring_view)>;

// Receives a tree, every node before its children.
class ListingWriter
{
  public:
    virtual ~ListingWriter() = default;
    virtual void beginNode(const NodeListing& node) = 0;
    virtual void endNode() = 0;
};

// Selects the node and every node below it in the view, one after the other, and hands over what each shows.
void listNodes(const ScopeTree& tree, View& view, NodeId node, ListingWriter& writer);

} // namespace Console
