#pragma once

#include "platform/mmc.h"

#include <unordered_set>

namespace TMgmt
{

class CSnapInItem;

// The state that belongs to the module as a whole: how much of it is in use, and which nodes are alive. One thread,
// the console's, uses it; only the counts can be reached from others.
class Module
{
  public:
    static Module& instance() noexcept;

    // Objects and class-factory locks keep the module loaded.
    void objectBorn() noexcept { InterlockedIncrement(&m_inUse); }
    void objectGone() noexcept { InterlockedDecrement(&m_inUse); }
    bool canUnload() const noexcept { return m_inUse == 0; }

    // The console hands nodes back as the number that it was given for them. It may hand back one whose node is long
    // gone, or one that never was: only numbers in this list are followed.
    void itemBorn(CSnapInItem* item) { m_alive.insert(item); }
    void itemGone(CSnapInItem* item) noexcept;
    // Null when no live node has this cookie.
    CSnapInItem* findItem(MMC_COOKIE cookie) noexcept;

  private:
    Module() = default;

    LONG m_inUse = 0;
    std::unordered_set<CSnapInItem*> m_alive;
    CSnapInItem* m_lastFound = nullptr;
};

} // namespace TMgmt
