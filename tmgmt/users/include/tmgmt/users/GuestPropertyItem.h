#pragma once

#include "tmgmt/users/AccountItem.h"

namespace TMgmt
{

// The server's guest account, which can only be switched on or off.
class GuestPropertyItem : public AccountItem<GuestPropertyItem>
{
  public:
    static constexpr GUID nodeType{0xef0a80e6, 0xb3ff, 0x4f37, {0x9c, 0x1a, 0xec, 0x7d, 0xaf, 0x81, 0xd2, 0xf9}};

    GuestPropertyItem(const CSnapInItem& parent, bool enabled) : AccountItem(parent, name, name, enabled) {}

  protected:
    HRESULT edit(Console& console) override;

  private:
    static constexpr wchar_t name[] = L"Guest";
};

} // namespace TMgmt
