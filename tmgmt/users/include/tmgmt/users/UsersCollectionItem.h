#pragma once

#include "tmgmt/frame/StoredCollection.h"

namespace TMgmt
{

// The node "Users": the server's guest account and its own user accounts.
class UsersCollectionItem : public StoredCollection<UsersCollectionItem, CSnapInItem>
{
  public:
    static constexpr GUID nodeType{0x7da27e6c, 0x61df, 0x4d4d, {0xa4, 0xde, 0x9e, 0xa5, 0x5f, 0xad, 0x50, 0xff}};
    static constexpr UINT menu = IDM_USERS;

    UsersCollectionItem();

    HRESULT Command(long command, Console& console, DATA_OBJECT_TYPES type) override;
    HRESULT OnShow(bool selecting, HSCOPEITEM node, Console& console) override;

  protected:
    // The guest first. Reports accounts that cannot be read, and lists none.
    Listing read(Listing former) override;

  private:
    HRESULT add(Console& console);
};

} // namespace TMgmt
