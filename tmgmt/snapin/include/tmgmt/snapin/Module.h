#pragma once

#include "platform/mmc.h"

#include "tmgmt/snapin/NodeTable.h"

namespace TMgmt
{

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
    // gone, or one that never was: only numbers in this table are followed.
    NodeTable& nodes() noexcept { return m_nodes; }

  private:
    Module() = default;

    LONG m_inUse = 0;
    NodeTable m_nodes;
};

} // namespace TMgmt
