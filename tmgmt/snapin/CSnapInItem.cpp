#include "tmgmt/snapin/CSnapInItem.h"

#include "tmgmt/snapin/Module.h"

namespace TMgmt
{

CSnapInItem::CSnapInItem()
{
    Module::instance().itemBorn(this);
}

CSnapInItem::~CSnapInItem()
{
    Module::instance().itemGone(this);
}

} // namespace TMgmt
