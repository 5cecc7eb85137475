#pragma once

#include "tmgmt/frame/Item.h"
#include "tmgmt/snapin/ItemAccess.h"
#include "tmgmt/snapin/Module.h"

namespace TMgmt
{

// The base of a row that another node lists and that is not a node of the tree. T is the row's class.
template <class T>
class Row : public Item<T>
{
  public:
    // It has no list of its own to fill anew.
    HRESULT OnViewChange(LPARAM, LPARAM, Console& console) override
    {
        console.updateRow(*this);
        return S_OK;
    }

  protected:
    Row(const CSnapInItem& lister, const ResultNode& node) : Item<T>(node), m_lister(lister.cookie()) {}

    // The node that lists this one. Throws ComError when it is gone.
    Core::SmartPtr<CSnapInItem> lister() const { return itemOfCookie(m_lister); }
    // For a row that from now on shows something else than what is stored.
    void leaveStored() const noexcept
    {
        if (CSnapInItem* const lister = Module::instance().nodes().find(m_lister))
        {
            lister->discardRows();
        }
    }

  private:
    // By its cookie: a row can outlive the tree that it belongs to.
    MMC_COOKIE m_lister;
};

// A row that the user can delete.
template <class T>
class DeletableRow : public Row<T>
{
  public:
    HRESULT OnSelect(bool, bool isSelected, Console& console) override
    {
        return this->enableVerb(MMC_VERB_DELETE, isSelected, console);
    }

  protected:
    using Row<T>::Row;
};

} // namespace TMgmt
