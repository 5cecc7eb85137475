#include "tmgmt/templates/TemplatesCollection.h"

namespace TMgmt
{

TemplatesCollection::TemplatesCollection()
    : Item(ScopeNode{.displayName = L"Server Templates", .image = 8, .childCount = 0})
{
}

} // namespace TMgmt
