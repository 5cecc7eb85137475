#include "tmgmt/hotfolders/HotFoldersCollectionItem.h"

namespace TMgmt
{

HotFoldersCollectionItem::HotFoldersCollectionItem()
    : Item(ScopeNode{.displayName = L"Hot Folders", .image = 8, .childCount = 0})
{
}

} // namespace TMgmt
