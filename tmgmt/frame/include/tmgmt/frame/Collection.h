#pragma once

#include <vector>

#include "brimlow/system/SmartPtr.h"
#include "tmgmt/frame/Item.h"
#include "tmgmt/ui/WaitCursor.h"

namespace TMgmt
{

// A node of the tree whose result pane lists what is kept elsewhere (a folder, a file, a database), one row each. T is
// the node's class, Row the class of its rows. The rows are made anew whenever the list is read; a view that still
// shows the former ones keeps them alive.
template <class T, class Row>
class Collection : public Item<T>
{
  public:
    void refreshResultList(Console& console) override
    {
        fillResultList(console);
        console.updateOtherViews(*this, CCT_SCOPE);
    }

    HRESULT OnRefresh(Console& console) override
    {
        console.refreshResultList(*this);
        return S_OK;
    }

  protected:
    using Rows = std::vector<Core::SmartPtr<Row>>;
    using Item<T>::Item;

    // Makes the rows of what is stored now, in the order in which they are listed.
    virtual Rows readRows() = 0;

    // Afterwards rows() is what readRows gave; empty when it threw.
    void reload()
    {
        m_rows.clear();
        m_rows = readRows();
    }

    const Rows& rows() const noexcept { return m_rows; }

    // Reads the rows anew and lists them in the caller's view, where it shows this node.
    void fillResultList(Console& console)
    {
        if (console.shows(*this))
        {
            console.clearRows();
        }
        const WaitCursor wait;
        reload();
        if (console.shows(*this))
        {
            insertRows(console);
        }
    }

    void insertRows(Console& console) override
    {
        for (const auto& row : m_rows)
        {
            console.insertRow(*row);
        }
    }

  private:
    Rows m_rows;
};

} // namespace TMgmt
