#pragma once

#include "tmgmt/frame/Item.h"

namespace TMgmt
{

// The node "Users": the server's own user accounts.
class UsersCollectionItem : public Item<UsersCollectionItem>
{
  public:
    static constexpr GUID nodeType{0x7da27e6c, 0x61df, 0x4d4d, {0xa4, 0xde, 0x9e, 0xa5, 0x5f, 0xad, 0x50, 0xff}};

    UsersCollectionItem();
};

} // namespace TMgmt
