#pragma once

#include "DataObject.h"
#include "console/host/Node.h"

#include <vector>

namespace Console
{

class Component;
class ViewState;

// What commands act on.
struct Target
{
    enum class Kind
    {
        none,
        node,    // a node of the tree, in the tree or as a row
        row,     // one row of the snap-in's own
        rows,    // several rows
        special, // whatever is selected in a pane without a list
    };
    Kind kind = Kind::none;
    NodeId node = NodeId::none;
    bool inTree = false;   // a node that is selected in the tree, not in the list
    MMC_COOKIE cookie = 0; // of a row
    LONG_PTR row = 0;      // its id, or its place in a virtual list
};

// Which rows are selected and whether commands act on them or on the tree's node; tells the snap-in of each change.
class ListSelection
{
  public:
    explicit ListSelection(ViewState& view) : m_view(view) {}

    const Target& target() const { return m_target; }

    // The node was entered (or is about to be left): MMCN_SELECT for it, the verbs' states, the bars.
    void begin();
    void end();

    void selectRows(const std::vector<int>& places);
    std::vector<int> selectedRows() const;
    bool selected(int place) const;
    void focusTree(bool tree);

    // Selects another node of the tree for the time that its menu is open.
    void beginTemporary(NodeId node);
    void endTemporary();

    // Rows or nodes go: they are no target any more. Nothing is sent for what is gone.
    void forgetRow(LONG_PTR row, bool wasSelected);
    void forgetNode(NodeId node);
    void forgetRows();

    // For the target, from the right side of the snap-in: the multi-select object for several rows. Empty for none.
    DataObject object() const;
    // The component that target's notifications go to; null for none.
    Component* component() const;

  private:
    Target present() const;
    void retarget();
    void announce(bool select);

    ViewState& m_view;
    Target m_target;
    bool m_announced = false;
    bool m_treeFocus = true;
    bool m_temporary = false;
};

} // namespace Console
