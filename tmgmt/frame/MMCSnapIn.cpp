#include "tmgmt/frame/MMCSnapIn.h"

#include "tmgmt/frame/MMCView.h"
#include "tmgmt/snapin/guard.h"

namespace TMgmt
{

MMCSnapIn::MMCSnapIn(RootBranches branches) : m_root(new RootItem(std::move(branches))) {}

void MMCSnapIn::onInitialize(IConsole& console)
{
    Microsoft::WRL::ComPtr<IImageList> images;
    if (FAILED(console.QueryScopeImageList(&images)) || !images)
    {
        throw ComError(E_UNEXPECTED);
    }
    throwIfFailed(loadImageStrip(*images.Get()));
}

IComponent* MMCSnapIn::newComponent()
{
    return new MMCView(*this);
}

} // namespace TMgmt
