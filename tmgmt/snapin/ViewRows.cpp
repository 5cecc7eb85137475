#include "tmgmt/snapin/ViewRows.h"

#include <algorithm>
#include <functional>

namespace TMgmt
{

void ViewRows::add(CSnapInItem& item, HRESULTITEM id)
{
    m_rows.push_back({Core::SmartPtr<CSnapInItem>(&item), id});
    m_areSorted = false;
}

void ViewRows::clear() noexcept
{
    // Destructors of nodes run on a list that no longer has them.
    const decltype(m_rows) gone = std::exchange(m_rows, {});
    m_areSorted = true;
}

HRESULTITEM ViewRows::find(const CSnapInItem& item) noexcept
{
    const auto node = [](const Row& row) { return row.item.get(); };
    if (!m_areSorted)
    {
        std::ranges::stable_sort(m_rows, std::less(), node);
        m_areSorted = true;
    }
    const auto found = std::ranges::equal_range(m_rows, &item, std::less(), node);
    return found.empty() ? 0 : found.back().id;
}

} // namespace TMgmt
