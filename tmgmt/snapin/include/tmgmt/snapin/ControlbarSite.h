#pragma once

#include "platform/mmc.h"

#include <wrl/client.h>

namespace TMgmt
{

// A view's place in the console's control bar. controlbar is null after the console has taken it back.
class ControlbarSite
{
  public:
    explicit ControlbarSite(IExtendControlbar& owner) noexcept : m_owner(owner) {}

    Microsoft::WRL::ComPtr<IControlbar> controlbar;
    // What is attached to it, null when nothing is.
    Microsoft::WRL::ComPtr<IToolbar> toolbar;

    // The view itself, not counted: the site is part of it.
    IExtendControlbar& owner() const noexcept { return m_owner; }

  private:
    IExtendControlbar& m_owner;
};

} // namespace TMgmt
