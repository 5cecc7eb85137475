#pragma once

#include <windows.h>

namespace platform
{

// The activation context of a module's own manifest (resource 2), which asks for the common controls with visual
// styles. A module that is loaded into somebody else's process cannot count on that process's manifest.
class VisualStyles
{
  public:
    // Without a manifest in the module (or without memory) windows simply look as their host's do.
    explicit VisualStyles(HMODULE module) noexcept;
    VisualStyles(const VisualStyles&) = delete;
    VisualStyles& operator=(const VisualStyles&) = delete;
    ~VisualStyles();

    // Windows created while a Scope lives get the styles. Scopes nest and end in reverse order.
    class Scope
    {
      public:
        explicit Scope(const VisualStyles& styles) noexcept;
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;
        ~Scope();

      private:
        ULONG_PTR m_cookie = 0;
        bool m_active;
    };

  private:
    HANDLE m_context;
};

} // namespace platform
