#include "objectMap.h"

#include <array>

#include "tmgmt/frame/MMCSnapIn.h"
#include "tmgmt/frame/MMCSnapInAbout.h"
#include "tree.h"

namespace TMgmt
{
namespace
{

IUnknown* createSnapIn()
{
    return static_cast<IComponentData*>(new MMCSnapIn(makeBranches()));
}

IUnknown* createAbout()
{
    return new MMCSnapInAbout;
}

constexpr std::array<ObjectMapEntry, 2> map{{
    {CLSID_MMCSnapIn, createSnapIn, IDR_SNAPIN_SCRIPT},
    {CLSID_MMCSnapInAbout, createAbout, IDR_ABOUT_SCRIPT},
}};

} // namespace

std::span<const ObjectMapEntry> objectMap() noexcept
{
    return map;
}

} // namespace TMgmt
