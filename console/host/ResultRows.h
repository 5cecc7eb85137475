#pragma once

#include "HandleTable.h"
#include "RowOrder.h"
#include "console/host/Node.h"

#include <windows.h>

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace Console
{

// One row of an ordinary list.
struct Row : RowLink
{
    LONG_PTR id = 0;            // HRESULTITEM
    LPARAM cookie = 0;          // the snap-in's own; for a tree's node, that node's
    NodeId node = NodeId::none; // the tree's node that the row stands for
    int image = 0;              // the snap-in's number; MMC_IMAGECALLBACK: ask
    bool hasImage = false;
    UINT state = 0; // LVIS_… without the selected bit
    int indent = 0;
    std::unique_ptr<std::wstring> text; // only when the snap-in gave one in place of the callback
};

// The rows of an ordinary list, in their order, found by place, by id, by cookie and by node.
class ResultRows
{
  public:
    int count() const { return m_order.size(); }
    Row* at(int place) const { return static_cast<Row*>(m_order.at(place)); }
    // Null when there is no row of that id, whatever number it is.
    Row* find(LONG_PTR id) { return m_rows.find(id); }
    static int placeOf(const Row& row) { return RowOrder::placeOf(row); }
    static Row* next(const Row& row) { return static_cast<Row*>(RowOrder::next(row)); }
    Row* first() const { return static_cast<Row*>(m_order.first()); }
    Row* findNode(NodeId node);
    // The first row of the snap-in's own that was inserted with that cookie; null for none.
    Row* findCookie(LPARAM cookie);

    // A new row of the snap-in's own, or (with a node) of a node of the tree.
    Row& insert(int place, LPARAM cookie, NodeId node = NodeId::none);
    void erase(Row& row);
    void clear();
    // All rows but those of nodes.
    void eraseOwn();
    void setCookie(Row& row, LPARAM cookie);
    // Must hold every row once.
    void reorder(const std::vector<Row*>& rows);
    std::vector<Row*> all() const;

    static void select(Row& row, bool selected) { RowOrder::select(row, selected); }
    int selectedCount() const { return m_order.selectedCount(); }
    int nextSelected(int from) const { return m_order.nextSelected(from); }

  private:
    void forgetCookie(const Row& row);

    HandleTable<Row> m_rows{0x3B7D0000};
    RowOrder m_order;
    std::unordered_map<LONG_PTR, Row*> m_nodes;
    // Made when a cookie is first looked for: most snap-ins never do, and it costs as much as the rows.
    std::unordered_multimap<LPARAM, Row*> m_cookies;
    bool m_cookiesKnown = false;
};

} // namespace Console
