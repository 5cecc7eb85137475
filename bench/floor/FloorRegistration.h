#pragma once

#include "floor/FloorNode.h"

#include <windows.h>

#include <memory>
#include <string>

namespace Bench
{

// Makes the floor a class that a console can create, for as long as this lives.
class FloorRegistration
{
  public:
    // The tree is lent. Throws std::runtime_error when the class cannot be registered.
    explicit FloorRegistration(const FloorNode& root);
    FloorRegistration(const FloorRegistration&) = delete;
    FloorRegistration& operator=(const FloorRegistration&) = delete;
    ~FloorRegistration();

  private:
    std::wstring m_key;
    DWORD m_cookie = 0;
};

} // namespace Bench
