#pragma once

#include "console/host/Node.h"

#include <windows.h>

#include <memory>
#include <string>

namespace Console
{

class Instance;

// One snap-in in the console: a static node, and the snap-in's component data behind it once it is needed.
class SnapIn
{
  public:
    explicit SnapIn(std::unique_ptr<Instance> instance);
    SnapIn(const SnapIn&) = delete;
    SnapIn& operator=(const SnapIn&) = delete;
    ~SnapIn();

    enum class State
    {
        notLoaded, // shown in the tree, nothing created yet
        ready,
        failed, // could not be created or initialised
        dead,   // crashed inside one of its calls; nothing is called in it any more
    };

    const CLSID& clsid() const;
    // Counted from 1; the number in Call::instance.
    unsigned number() const;
    // The static node.
    NodeId root() const;
    State state() const;
    // For failed and dead: one sentence that names the snap-in, the reason and the way out. Else empty.
    const std::wstring& problem() const;

    // Creates and initialises it, as expanding or selecting its node would. True when it is ready; a snap-in that
    // failed or died stays so. (Only a snap-in that was never loaded is loaded.)
    bool load();

    Instance& instance() const { return *m_instance; }

  private:
    std::unique_ptr<Instance> m_instance;
};

} // namespace Console
