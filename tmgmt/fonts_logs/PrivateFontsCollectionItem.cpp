#include "tmgmt/fonts_logs/PrivateFontsCollectionItem.h"

namespace TMgmt
{

PrivateFontsCollectionItem::PrivateFontsCollectionItem()
    : Item(ScopeNode{.displayName = L"Private Fonts", .image = 5, .childCount = 0})
{
}

} // namespace TMgmt
