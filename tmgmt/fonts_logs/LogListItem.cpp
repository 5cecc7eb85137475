#include "tmgmt/fonts_logs/LogListItem.h"

namespace TMgmt
{

LogListItem::LogListItem() : Item(ScopeNode{.displayName = L"Log Files", .image = 8, .childCount = 0}) {}

} // namespace TMgmt
