#include "tmgmt/snapin/CSnapInItem.h"

#include "tmgmt/snapin/Module.h"

namespace TMgmt
{

CSnapInItem::CSnapInItem() : m_cookie(Module::instance().nodes().add(*this)) {}

CSnapInItem::~CSnapInItem()
{
    Module::instance().nodes().remove(m_cookie);
}

} // namespace TMgmt
