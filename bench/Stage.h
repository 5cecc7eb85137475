#pragma once

#include "console/host/Host.h"
#include "floor/FloorRegistration.h"
#include "kit/Frame.h"

#include <memory>

namespace Bench
{

extern const CLSID plugInClass;

// A console with the plug-in and the floor in it, and one view.
class Stage
{
  public:
    // The floor's tree is lent. Throws std::runtime_error when one of the two cannot be loaded.
    explicit Stage(const FloorNode& floor);
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;
    ~Stage();

    Console::SnapIn& plugIn() { return m_plugIn; }
    Console::SnapIn& floor() { return m_floor; }
    const Console::ScopeTree& tree() const { return m_host.tree(); }
    Console::View& view() { return *m_view; }
    const Acceptance::Frame& frame() const { return m_frame; }

    // Shows nothing.
    void leave();

  private:
    FloorRegistration m_registration;
    Acceptance::Frame m_frame;
    Console::ViewListener m_listener;
    Console::Host m_host;
    Console::SnapIn& m_plugIn;
    Console::SnapIn& m_floor;
    std::unique_ptr<Console::View> m_view;
};

} // namespace Bench
