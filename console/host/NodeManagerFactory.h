#pragma once

#include <windows.h>

#include <memory>

namespace Console
{

class HostState;

// Makes CoCreateInstance(CLSID_NodeManager) work in this process for as long as it lives: snap-ins get their property
// sheet provider that way.
class NodeManagerRegistration
{
  public:
    explicit NodeManagerRegistration(HostState& host);
    NodeManagerRegistration(const NodeManagerRegistration&) = delete;
    NodeManagerRegistration& operator=(const NodeManagerRegistration&) = delete;
    ~NodeManagerRegistration();

  private:
    DWORD m_cookie = 0;
};

} // namespace Console
