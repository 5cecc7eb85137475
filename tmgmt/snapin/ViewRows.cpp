#include "tmgmt/snapin/ViewRows.h"

namespace TMgmt
{

void ViewRows::clear() noexcept
{
    // Destructors of nodes run on a list that no longer has them.
    decltype(m_rows) gone;
    gone.swap(m_rows);
}

HRESULTITEM ViewRows::find(const CSnapInItem& item) const noexcept
{
    const auto row = m_rows.find(&item);
    return row == m_rows.end() ? 0 : row->second.id;
}

} // namespace TMgmt
