#include "floor/FloorData.h"

#include "floor/FloorComponent.h"
#include "floor/FloorObject.h"
#include "floor/floorPictures.h"

namespace Bench
{

const FloorNode& FloorData::nodeOf(MMC_COOKIE cookie) const
{
    return cookie == 0 ? m_root : *reinterpret_cast<const FloorNode*>(cookie);
}

HRESULT FloorData::Initialize(LPUNKNOWN console)
{
    Microsoft::WRL::ComPtr<IConsole2> own;
    Microsoft::WRL::ComPtr<IImageList> images;
    const bool complete = SUCCEEDED(console->QueryInterface(IID_PPV_ARGS(own.GetAddressOf()))) &&
                          SUCCEEDED(own->QueryScopeImageList(&images)) &&
                          SUCCEEDED(console->QueryInterface(IID_PPV_ARGS(m_nameSpace.GetAddressOf())));
    return complete ? addPictures(*images.Get()) : E_NOINTERFACE;
}

HRESULT FloorData::CreateComponent(LPCOMPONENT* component)
{
    *component = new FloorComponent(*this);
    return S_OK;
}

HRESULT FloorData::Notify(LPDATAOBJECT object, MMC_NOTIFY_TYPE event, LPARAM arg, LPARAM param)
{
    if (event != MMCN_EXPAND || arg == FALSE)
    {
        return S_FALSE;
    }
    for (const FloorNode& child : static_cast<FloorObject*>(object)->node()->children)
    {
        SCOPEDATAITEM item{};
        item.mask = SDI_STR | SDI_PARAM | SDI_CHILDREN | SDI_PARENT;
        item.displayname = platform::askForText();
        item.lParam = reinterpret_cast<LPARAM>(&child);
        item.cChildren = child.children.empty() ? 0 : 1;
        item.relativeID = param;
        if (const HRESULT result = m_nameSpace->InsertItem(&item); FAILED(result))
        {
            return result;
        }
    }
    return S_OK;
}

HRESULT FloorData::Destroy()
{
    m_nameSpace.Reset();
    return S_OK;
}

HRESULT FloorData::QueryDataObject(MMC_COOKIE cookie, DATA_OBJECT_TYPES, LPDATAOBJECT* object)
{
    *object = new FloorObject(&nodeOf(cookie));
    return S_OK;
}

HRESULT FloorData::GetDisplayInfo(SCOPEDATAITEM* item)
{
    // The console only reads the text; the field is not const for its own use.
    item->displayname = const_cast<LPOLESTR>(nodeOf(item->lParam).name.c_str());
    return S_OK;
}

HRESULT FloorData::CompareObjects(LPDATAOBJECT left, LPDATAOBJECT right)
{
    return left == right ? S_OK : S_FALSE;
}

} // namespace Bench
