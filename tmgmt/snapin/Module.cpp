#include "tmgmt/snapin/Module.h"

namespace TMgmt
{

Module& Module::instance() noexcept
{
    static Module module;
    return module;
}

CSnapInItem* Module::findItem(MMC_COOKIE cookie) const noexcept
{
    auto* const item = reinterpret_cast<CSnapInItem*>(cookie);
    return m_alive.contains(item) ? item : nullptr;
}

} // namespace TMgmt
