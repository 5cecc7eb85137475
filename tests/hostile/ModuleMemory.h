#pragma once

#include "kit/ImportSpy.h"

#include <cstdlib>

namespace Hostile
{

// Counts the blocks of memory that the plug-in's own code has. All heaps together would not do: Wine loses three blocks
// whenever a dialog with visual styles closes, whosever it is.
class ModuleMemory
{
  public:
    // Those that were there before count as none.
    long blocks() const { return m_blocks; }

  private:
    template <Acceptance::ImportName name, class Function>
    using Spy = Acceptance::ImportSpy<name, Function>;

    void* counted(void* block)
    {
        m_blocks += block ? 1 : 0;
        return block;
    }

    long m_blocks = 0;
    Spy<"malloc", void*(std::size_t)> m_malloc{[this](std::size_t size)
                                               { return counted(m_malloc.callThrough(size)); }};
    Spy<"calloc", void*(std::size_t, std::size_t)> m_calloc{[this](std::size_t count, std::size_t size)
                                                            { return counted(m_calloc.callThrough(count, size)); }};
    Spy<"realloc", void*(void*, std::size_t)> m_realloc{[this](void* former, std::size_t size)
                                                        {
                                                            m_blocks -= former ? 1 : 0;
                                                            return counted(m_realloc.callThrough(former, size));
                                                        }};
    Spy<"free", void(void*)> m_free{[this](void* block)
                                    {
                                        m_blocks -= block ? 1 : 0;
                                        m_free.callThrough(block);
                                    }};
};

} // namespace Hostile
