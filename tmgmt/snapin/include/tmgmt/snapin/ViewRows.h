#pragma once

#include "platform/mmc.h"

#include <unordered_map>

#include "brimlow/system/SmartPtr.h"
#include "tmgmt/snapin/CSnapInItem.h"

namespace TMgmt
{

// The rows that one view was given and has not cleared yet, with the ids that the console gave them there. The view's
// references keep a row's node alive while the view may still ask for it, whatever another view does to its list.
class ViewRows
{
  public:
    void add(CSnapInItem& item, HRESULTITEM id)
    {
        m_rows.insert_or_assign(&item, Row{Core::SmartPtr<CSnapInItem>(&item), id});
    }
    void clear() noexcept;
    bool contains(const CSnapInItem& item) const noexcept { return m_rows.contains(&item); }
    // The row's id in this view; 0 when the view does not show it.
    HRESULTITEM find(const CSnapInItem& item) const noexcept;

  private:
    struct Row
    {
        Core::SmartPtr<CSnapInItem> item;
        HRESULTITEM id;
    };
    std::unordered_map<const CSnapInItem*, Row> m_rows;
};

} // namespace TMgmt
