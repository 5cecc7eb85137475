#include "NodeListing.h"

#include "ShownColumns.h"

namespace Console
{

namespace
{

NodeListing readNode(const ScopeTree& tree, const View& view, NodeId node)
{
    NodeListing listing;
    listing.name = tree.text(node);
    listing.image = tree.image(node);
    if (view.pane() != View::Pane::list)
    {
        listing.message = view.message();
        return listing;
    }
    const std::vector<Column> columns = shownColumns(view);
    for (const Column& column : columns)
    {
        listing.columns.push_back({column.title, column.width});
    }
    for (int row = 0; row < view.rowCount(); ++row)
    {
        NodeListing::Row& copy = listing.rows.emplace_back();
        for (int column = 0; column < static_cast<int>(columns.size()); ++column)
        {
            copy.cells.push_back(view.rowText(row, column));
        }
        copy.image = view.rowImage(row);
    }
    return listing;
}

} // namespace

void listNodes(const ScopeTree& tree, View& view, NodeId node, ListingWriter& writer)
{
    view.selectNode(node);
    writer.beginNode(readNode(tree, view, node));
    for (const NodeId child : tree.children(node))
    {
        // Showing one node may make a snap-in take away others.
        if (tree.contains(child))
        {
            listNodes(tree, view, child, writer);
        }
    }
    writer.endNode();
}

} // namespace Console
