#include "Instance.h"

#include "kit/ConsoleTest.h"
#include "kit/windows.h"

#include <algorithm>
#include <stdexcept>

using Microsoft::WRL::ComPtr;

namespace Hostile
{
namespace
{

// More than any list has.
constexpr int columns = 6;

} // namespace

View::~View()
{
    if (component)
    {
        as<IExtendControlbar>()->SetControlbar(nullptr);
        component->Destroy(0);
    }
}

Instance::Instance(Whim& whim, HWND frame) : console(whim, frame), m_whim(whim), m_frame(frame)
{
    const HRESULT created =
        CoCreateInstance(Acceptance::snapInClass, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(data.GetAddressOf()));
    if (FAILED(created))
    {
        throw std::runtime_error("the plug-in cannot be created");
    }
    data->Initialize(console.unknown());
}

Instance::~Instance()
{
    views.clear();
    if (data)
    {
        data->Destroy();
    }
}

std::shared_ptr<View> Instance::addView()
{
    const auto view = std::make_shared<View>(m_whim, m_frame);
    if (FAILED(data->CreateComponent(&view->component)))
    {
        return nullptr;
    }
    view->component->Initialize(&view->console);
    views.push_back(view);
    return view;
}

std::vector<HSCOPEITEM> Instance::childrenOf(HSCOPEITEM handle) const
{
    std::vector<HSCOPEITEM> children;
    for (const auto& [child, record] : console.scopeItems())
    {
        if (record.parent == handle)
        {
            children.push_back(child);
        }
    }
    return children;
}

void Instance::expand(HSCOPEITEM handle) const
{
    const auto node = object(cookieOf(handle));
    data->Notify(node.Get(), MMCN_EXPAND, TRUE, handle);
    for (const HSCOPEITEM child : childrenOf(handle))
    {
        expand(child);
    }
}

void Instance::expandAll()
{
    expand(rootHandle);
}

MMC_COOKIE Instance::cookieOf(HSCOPEITEM handle) const
{
    const auto found = console.scopeItems().find(handle);
    return found == console.scopeItems().end() ? 0 : found->second.cookie;
}

std::wstring Instance::nameOf(MMC_COOKIE cookie) const
{
    SCOPEDATAITEM item{};
    item.mask = SDI_STR;
    item.lParam = cookie;
    return SUCCEEDED(data->GetDisplayInfo(&item)) && item.displayname ? item.displayname : L"";
}

HSCOPEITEM Instance::find(const std::wstring& path) const
{
    HSCOPEITEM node = rootHandle;
    for (std::size_t begin = 0; begin < path.size();)
    {
        const std::size_t end = std::min(path.find(L'\\', begin), path.size());
        const auto children = childrenOf(node);
        const auto found = std::ranges::find(children, path.substr(begin, end - begin),
                                             [this](HSCOPEITEM child) { return nameOf(cookieOf(child)); });
        if (found == children.end())
        {
            throw std::runtime_error("no node " + Acceptance::narrow(path));
        }
        node = *found;
        begin = end + 1;
    }
    return node;
}

ComPtr<IDataObject> Instance::object(MMC_COOKIE cookie, DATA_OBJECT_TYPES type) const
{
    ComPtr<IDataObject> object;
    data->QueryDataObject(cookie, type, &object);
    return object;
}

void Instance::show(View& view, HSCOPEITEM handle) const
{
    const MMC_COOKIE cookie = cookieOf(handle);
    const auto node = object(cookie);
    LPOLESTR viewType = nullptr;
    long options = 0;
    view.component->GetResultViewType(cookie, &viewType, &options);
    view.component->Notify(node.Get(), MMCN_ADD_IMAGES,
                           reinterpret_cast<LPARAM>(static_cast<IImageList*>(&view.console)), handle);
    view.component->Notify(node.Get(), MMCN_SHOW, TRUE, handle);
    for (const HostileConsole::Row& row : view.console.rows())
    {
        for (int column = 0; column < columns; ++column)
        {
            RESULTDATAITEM asked{};
            asked.mask = RDI_STR | RDI_IMAGE;
            asked.lParam = row.cookie;
            asked.nCol = column;
            view.component->GetDisplayInfo(&asked);
        }
    }
    view.component->Notify(node.Get(), MMCN_SELECT, MAKELONG(TRUE, TRUE), 0);
    const auto bars = view.as<IExtendControlbar>();
    bars->SetControlbar(&view.controlbar);
    bars->ControlbarNotify(MMCN_SELECT, MAKELONG(TRUE, TRUE), reinterpret_cast<LPARAM>(node.Get()));
}

void Instance::leave(View& view, HSCOPEITEM handle) const
{
    const auto node = object(cookieOf(handle));
    const auto bars = view.as<IExtendControlbar>();
    view.component->Notify(node.Get(), MMCN_SELECT, MAKELONG(TRUE, FALSE), 0);
    bars->ControlbarNotify(MMCN_SELECT, MAKELONG(TRUE, FALSE), reinterpret_cast<LPARAM>(node.Get()));
    view.component->Notify(node.Get(), MMCN_SHOW, FALSE, handle);
    view.console.clearPane();
}

} // namespace Hostile
