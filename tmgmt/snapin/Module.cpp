#include "tmgmt/snapin/Module.h"

namespace TMgmt
{

Module& Module::instance() noexcept
{
    static Module module;
    return module;
}

} // namespace TMgmt
