#pragma once

#include "platform/mmc.h"

#include <memory>
#include <utility>
#include <vector>

#include "brimlow/system/SmartPtr.h"
#include "tmgmt/snapin/CSnapInItem.h"

namespace TMgmt
{

// What one view shows: a node of the tree, and the rows that the view was given and has not cleared yet, with the ids
// that the console gave them there. The view's references keep a row's node alive while the view may still ask for it,
// whatever another view does to its list.
class ViewRows
{
  public:
    // The node of the tree whose result pane is on the screen or being built; null where there is none.
    void setNode(Core::SmartPtr<CSnapInItem> node) noexcept { m_node = std::move(node); }
    bool showsNode(const CSnapInItem& item) const noexcept { return m_node.get() == &item; }

    // Whether this view is making the node's rows itself and so has the change already.
    bool isOwnChange(const CSnapInItem& node) const noexcept { return m_ownChange == &node; }

    void add(CSnapInItem& item, HRESULTITEM id);
    void clear() noexcept;
    // The row's id in this view, the last one that it was given; 0 when the view does not show it.
    HRESULTITEM find(const CSnapInItem& item) noexcept;

  private:
    friend class OwnChange;

    struct Row
    {
        Core::SmartPtr<CSnapInItem> item;
        HRESULTITEM id;
    };
    Core::SmartPtr<CSnapInItem> m_node;
    const CSnapInItem* m_ownChange = nullptr;
    // By node once one is looked for: most lists come and go without.
    std::vector<Row> m_rows;
    bool m_areSorted = true;
};

// While it lives, the view takes no notice of changes of that node. rows is null where the caller is no view.
class OwnChange
{
  public:
    OwnChange(std::shared_ptr<ViewRows> rows, const CSnapInItem& node) noexcept : m_rows(std::move(rows))
    {
        if (m_rows)
        {
            m_former = std::exchange(m_rows->m_ownChange, &node);
        }
    }
    OwnChange(const OwnChange&) = delete;
    OwnChange& operator=(const OwnChange&) = delete;
    ~OwnChange()
    {
        if (m_rows)
        {
            m_rows->m_ownChange = m_former;
        }
    }

  private:
    std::shared_ptr<ViewRows> m_rows;
    const CSnapInItem* m_former = nullptr;
};

} // namespace TMgmt
