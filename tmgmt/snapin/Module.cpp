#include "tmgmt/snapin/Module.h"

namespace TMgmt
{

Module& Module::instance() noexcept
{
    static Module module;
    return module;
}

void Module::itemGone(CSnapInItem* item) noexcept
{
    m_alive.erase(item);
    if (m_lastFound == item)
    {
        m_lastFound = nullptr;
    }
}

CSnapInItem* Module::findItem(MMC_COOKIE cookie) noexcept
{
    auto* const item = reinterpret_cast<CSnapInItem*>(cookie);
    // The texts of a row are asked for one after the other.
    if (item != m_lastFound)
    {
        m_lastFound = m_alive.contains(item) ? item : nullptr;
    }
    return m_lastFound;
}

} // namespace TMgmt
