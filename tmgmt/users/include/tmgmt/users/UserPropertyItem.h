#pragma once

#include "brimlow/tessaro/User.h"
#include "tmgmt/users/AccountItem.h"

namespace TMgmt
{

// One user account, as it was stored when the list was read, or as it was edited here since.
class UserPropertyItem : public AccountItem<UserPropertyItem>
{
  public:
    static constexpr GUID nodeType{0x63f7a0a4, 0x721e, 0x4cd8, {0x86, 0xf9, 0xcc, 0xf8, 0x6c, 0x53, 0xf8, 0xf9}};

    UserPropertyItem(const CSnapInItem& parent, const Tessaro::User& user);

    int userId() const noexcept { return m_user.getId(); }
    // Whether the row is that account's as it is, and was never edited.
    bool isOf(const Tessaro::User& user) const { return !m_edited && m_user == user; }

    HRESULT OnSelect(bool isScope, bool isSelected, Console& console) override;
    HRESULT OnDelete(Console& console) override;

  protected:
    HRESULT edit(Console& console) override;

  private:
    Tessaro::User m_user;
    bool m_edited = false;
};

} // namespace TMgmt
