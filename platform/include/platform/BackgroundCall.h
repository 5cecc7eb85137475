#pragma once

#include <chrono>
#include <functional>

#include "platform/handles.h"

namespace platform
{

// One call on a thread of its own, for what may take the system minutes. Whoever loses patience lets the object go: the
// thread ends by itself, and this module stays loaded until then. The work therefore owns all that it uses.
class BackgroundCall
{
  public:
    // Starts the work; what it throws is lost. Throws std::system_error when there is no thread to be had.
    explicit BackgroundCall(std::function<void()> work);

    // Waits for the work's end. False: it is not there yet.
    bool waitFor(std::chrono::milliseconds limit) const;

  private:
    KernelHandle m_thread;
};

} // namespace platform
