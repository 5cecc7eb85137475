#include "tmgmt/users/UsersCollectionItem.h"

namespace TMgmt
{

UsersCollectionItem::UsersCollectionItem() : Item(ScopeNode{.displayName = L"Users", .image = 19, .childCount = 0}) {}

} // namespace TMgmt
