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
    constexpr std::less<const CSnapInItem*> isBefore;
    if (!m_areSorted)
    {
        std::stable_sort(m_rows.begin(), m_rows.end(),
                         [&](const Row& left, const Row& right)
                         { return isBefore(left.item.get(), right.item.get()); });
        m_areSorted = true;
    }
    const auto behind =
        std::upper_bound(m_rows.begin(), m_rows.end(), &item,
                         [&](const CSnapInItem* node, const Row& row) { return isBefore(node, row.item.get()); });
    return behind != m_rows.begin() && (behind - 1)->item.get() == &item ? (behind - 1)->id : 0;
}

} // namespace TMgmt
