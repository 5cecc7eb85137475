#include "frame/BareSnapIn.h"

#include "frame/nodeData.h"
#include "kit/ConsoleTest.h"
#include "kit/windows.h"

#include <algorithm>
#include <stdexcept>

using Microsoft::WRL::ComPtr;

namespace Acceptance
{

BareSnapIn::BareSnapIn(bool initialize)
{
    const HRESULT created =
        CoCreateInstance(snapInClass, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(data.GetAddressOf()));
    if (FAILED(created) || (initialize && FAILED(data->Initialize(&console))))
    {
        throw std::runtime_error("the plug-in cannot be created");
    }
}

// A console takes its snap-ins down in this way; one that does not is played by a test that lets go of data before.
BareSnapIn::~BareSnapIn()
{
    if (data)
    {
        data->Destroy();
    }
}

BareSnapIn::View::~View()
{
    if (component)
    {
        bars()->SetControlbar(nullptr);
        component->Destroy(0);
    }
}

std::unique_ptr<BareSnapIn::View> BareSnapIn::makeView()
{
    auto view = std::make_unique<View>();
    if (FAILED(data->CreateComponent(&view->component)) || FAILED(view->component->Initialize(&view->console)))
    {
        throw std::runtime_error("no view");
    }
    return view;
}

SCOPEDATAITEM BareSnapIn::node(const std::wstring& path)
{
    SCOPEDATAITEM node{};
    node.ID = rootHandle;
    for (std::size_t begin = 0; begin < path.size();)
    {
        const std::size_t end = std::min(path.find(L'\\', begin), path.size());
        const std::wstring name = path.substr(begin, end - begin);
        console.nameSpace.children.clear();
        expand(node.lParam, node.ID);
        const auto found = std::ranges::find_if(console.nameSpace.children, [&](const SCOPEDATAITEM& child)
                                                { return displayName(child.lParam) == name; });
        if (found == console.nameSpace.children.end())
        {
            throw std::runtime_error("no node " + narrow(path));
        }
        node = *found;
        begin = end + 1;
    }
    return node;
}

ComPtr<IDataObject> BareSnapIn::object(MMC_COOKIE cookie, DATA_OBJECT_TYPES type) const
{
    ComPtr<IDataObject> object;
    if (FAILED(data->QueryDataObject(cookie, type, &object)) || !object)
    {
        throw std::runtime_error("no data object");
    }
    return object;
}

ComPtr<IDataObject> BareSnapIn::object(const std::wstring& path)
{
    return object(node(path).lParam);
}

std::wstring BareSnapIn::displayName(MMC_COOKIE cookie) const
{
    SCOPEDATAITEM item{};
    item.mask = SDI_STR;
    item.lParam = cookie;
    return SUCCEEDED(data->GetDisplayInfo(&item)) && item.displayname ? item.displayname : L"(none)";
}

HRESULT BareSnapIn::expand(MMC_COOKIE cookie, HSCOPEITEM handle, bool expanding) const
{
    return data->Notify(object(cookie).Get(), MMCN_EXPAND, expanding, handle);
}

ComPtr<IExtendContextMenu> BareSnapIn::menus() const
{
    ComPtr<IExtendContextMenu> menus;
    data.As(&menus);
    return menus;
}

ComPtr<IExtendControlbar> BareSnapIn::View::bars() const
{
    ComPtr<IExtendControlbar> bars;
    component.As(&bars);
    return bars;
}

ComPtr<IExtendContextMenu> BareSnapIn::View::menus() const
{
    ComPtr<IExtendContextMenu> menus;
    component.As(&menus);
    return menus;
}

ComPtr<IDataObject> BareSnapIn::View::object(MMC_COOKIE cookie, DATA_OBJECT_TYPES type) const
{
    ComPtr<IDataObject> object;
    if (FAILED(component->QueryDataObject(cookie, type, &object)) || !object)
    {
        throw std::runtime_error("no data object");
    }
    return object;
}

std::wstring BareSnapIn::View::cell(MMC_COOKIE cookie, int column) const
{
    RESULTDATAITEM item{};
    item.mask = RDI_STR;
    item.lParam = cookie;
    item.nCol = column;
    return SUCCEEDED(component->GetDisplayInfo(&item)) && item.str ? item.str : L"(none)";
}

} // namespace Acceptance
