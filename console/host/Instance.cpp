#include "Instance.h"

#include "PropertySheets.h"
#include "ViewState.h"
#include "console/host/AboutInformation.h"
#include "console/host/Registration.h"
#include "faceCount.h"
#include "platform/com.h"

#include <algorithm>

namespace Console
{

namespace
{

// The longest text that is taken from a snap-in; more is a missing end.
constexpr std::size_t longestText = 0x8000;

} // namespace

Instance::Instance(HostState& host, const CLSID& clsid)
    : m_host(host), m_clsid(clsid), m_number(++host.lastInstance), m_scopeImages(host.scopeImages)
{
    ScopeNode& node = host.scope.addRoot(*this);
    m_root = node.id;
    const std::optional<RegisteredSnapIn> entry = findSnapIn(clsid);
    m_name = entry ? entry->name : describe(clsid);
    node.text = m_name;
    if (entry && entry->about)
    {
        const AboutInformation about = readAboutInformation(*entry->about);
        // Numbers that no snap-in can use: its own begin anywhere in the int range but are at least 0.
        constexpr int closed = -100;
        constexpr int open = -101;
        if (about.smallFolder && about.largeFolder &&
            m_scopeImages.setStrips(about.smallFolder.get(), about.largeFolder.get(), closed, about.mask) == S_OK)
        {
            node.image = closed;
            node.openImage = closed;
            const HBITMAP openBitmap = about.smallOpenFolder.get();
            if (openBitmap != nullptr &&
                m_scopeImages.setStrips(openBitmap, about.largeFolder.get(), open, about.mask) == S_OK)
            {
                node.openImage = open;
            }
        }
    }
}

Instance::~Instance()
{
    unload();
    m_host.scope.remove(*m_host.scope.find(m_root));
}

void Instance::changed()
{
    SnapIn* const snapIn = m_host.snapInOf(*this);
    if (snapIn != nullptr)
    {
        m_host.tellListeners([&](HostListener& listener) { listener.snapInChanged(*snapIn); });
    }
    m_host.tellListeners([&](HostListener& listener) { listener.nodeChanged(m_root); });
}

bool Instance::fail(const std::wstring& reason)
{
    if (m_state != SnapIn::State::dead)
    {
        m_state = SnapIn::State::failed;
        m_problem = L"The snap-in \"" + m_name + L"\" cannot be used. " + reason;
    }
    changed();
    return false;
}

bool Instance::load()
{
    if (m_state != SnapIn::State::notLoaded)
    {
        return ready();
    }
    const HostState::Operation operation(m_host);
    const ServerState server = inspectServer(m_clsid);
    if (!server.problem.empty())
    {
        return fail(server.problem);
    }
    IComponentData* made = nullptr;
    const HRESULT created = call(
        0, L"CoCreateInstance", [&] { return listOf(L"clsid", m_clsid); },
        [&]
        {
            return CoCreateInstance(m_clsid, nullptr, CLSCTX_INPROC_SERVER, __uuidof(IComponentData),
                                    reinterpret_cast<void**>(&made));
        });
    if (FAILED(created) || made == nullptr)
    {
        return fail(server.library + L" did not create it (" + resultName(created) +
                    L"). Reinstall the snap-in or ask its maker.");
    }
    m_data = platform::takeReference(made);
    m_console = new ConsoleObject({&m_host, this, m_number, 0}, nullptr);
    const HRESULT initialized = call(0, L"IComponentData::Initialize", noArguments,
                                     [&] { return m_data->Initialize(static_cast<IUnknown*>(m_console.Get())); });
    if (FAILED(initialized))
    {
        const std::wstring reason = L"It could not initialise itself (" + resultName(initialized) +
                                    L"). Reinstall the snap-in or ask its maker.";
        if (m_state != SnapIn::State::dead)
        {
            m_state = SnapIn::State::failed; // before anything is asked of it again
        }
        unload();
        return fail(reason);
    }
    m_state = SnapIn::State::ready;
    nameStaticNode();
    changed();
    return ready();
}

void Instance::nameStaticNode()
{
    const std::wstring name = dataObject(m_root).displayName();
    ScopeNode* const node = m_host.scope.find(m_root);
    // A snap-in that named its node during Initialize is not overruled.
    if (!name.empty() && node->text == m_name)
    {
        node->text = name;
    }
}

void Instance::unload()
{
    if (m_data == nullptr)
    {
        return;
    }
    const HostState::Operation operation(m_host);
    m_host.sheets->closeOf(*this);
    if (m_state == SnapIn::State::ready && m_host.scope.find(m_root)->expanded)
    {
        const DataObject object = dataObject(m_root);
        notify(object.get(), MMCN_REMOVE_CHILDREN, static_cast<LPARAM>(m_root), 0);
    }
    if (m_state != SnapIn::State::failed) // one that never was initialised has nothing to tear down
    {
        call(0, L"IComponentData::Destroy", noArguments, [&] { return m_data->Destroy(); });
    }
    IComponentData* const data = m_data.Detach();
    ULONG left = 0;
    call(0, L"IComponentData::Release", noArguments,
         [&]
         {
             left = data->Release();
             return S_OK;
         });
    if (left != 0 && m_state != SnapIn::State::dead)
    {
        m_host.complain(m_number, L"The component data still has " + describe(left) +
                                      L" references after the console let go of it.");
    }
    m_console.Reset();
    countFaces(m_host, *this, 0);
}

HRESULT Instance::query(IUnknown* object, REFIID id, void** found)
{
    HRESULT result = E_NOINTERFACE;
    const HostState::Depths depths = m_host.depths;
    const GuardOutcome outcome = guarded([&] { result = object->QueryInterface(id, found); });
    m_host.depths = depths;
    if (outcome.kind != GuardOutcome::Kind::returned)
    {
        contain(L"IUnknown::QueryInterface", outcome);
        return E_FAIL;
    }
    return *found == nullptr ? E_NOINTERFACE : result;
}

bool Instance::expand(NodeId id)
{
    if (!load())
    {
        return false;
    }
    ScopeNode* const node = m_host.scope.find(id);
    if (node == nullptr || node->expanded)
    {
        return node != nullptr;
    }
    const HostState::Operation operation(m_host);
    node->expanded = true; // before the snap-in is asked: it may come back here
    ++m_host.depths.expansions;
    const DataObject object = dataObject(id);
    MMC_EXPANDSYNC_STRUCT sync{FALSE, TRUE, static_cast<HSCOPEITEM>(id)};
    notify(object.get(), MMCN_EXPANDSYNC, 0, reinterpret_cast<LPARAM>(&sync));
    if (sync.bHandled == FALSE)
    {
        notify(object.get(), MMCN_EXPAND, TRUE, static_cast<LPARAM>(id));
    }
    --m_host.depths.expansions;
    m_host.tellListeners([&](HostListener& listener) { listener.nodeChanged(id); });
    return m_host.scope.find(id) != nullptr && ready();
}

HRESULT Instance::notify(LPDATAOBJECT object, MMC_NOTIFY_TYPE event, LPARAM arg, LPARAM param)
{
    return call(
        0, L"IComponentData::Notify",
        [&] { return listOf(L"object", object, L"event", event, L"arg", arg, L"param", param); },
        [&] { return m_data->Notify(object, event, arg, param); });
}

DataObject Instance::dataObject(NodeId id)
{
    const ScopeNode* const node = m_host.scope.find(id);
    if (node == nullptr || !ready())
    {
        return {};
    }
    const MMC_COOKIE cookie = node->cookie;
    IDataObject* object = nullptr;
    call(
        0, L"IComponentData::QueryDataObject", [&] { return listOf(L"cookie", cookie, L"type", L"CCT_SCOPE"); },
        [&] { return m_data->QueryDataObject(cookie, CCT_SCOPE, &object); });
    if (IS_SPECIAL_DATAOBJECT(object))
    {
        return {};
    }
    return DataObject(*this, object);
}

std::wstring Instance::nodeText(NodeId id)
{
    const ScopeNode* const node = m_host.scope.find(id);
    if (node == nullptr)
    {
        return {};
    }
    if (node->text || !ready())
    {
        return node->text.value_or(std::wstring());
    }
    SCOPEDATAITEM item{};
    item.mask = SDI_STR;
    item.ID = static_cast<HSCOPEITEM>(id);
    item.lParam = node->cookie;
    std::wstring text;
    call(
        0, L"IComponentData::GetDisplayInfo", [&] { return listOf(L"mask", L"SDI_STR", L"lParam", item.lParam); },
        [&]
        {
            const HRESULT result = m_data->GetDisplayInfo(&item);
            if (SUCCEEDED(result) && item.displayname != nullptr && item.displayname != platform::askForText())
            {
                text.assign(item.displayname, wcsnlen(item.displayname, longestText));
            }
            return result;
        });
    return text;
}

int Instance::nodeImage(NodeId id, bool open)
{
    const ScopeNode* const node = m_host.scope.find(id);
    if (node == nullptr)
    {
        return -1;
    }
    std::optional<int> number = open && node->openImage ? node->openImage : node->image;
    if (number == MMC_IMAGECALLBACK && ready())
    {
        SCOPEDATAITEM item{};
        item.mask = open ? SDI_OPENIMAGE : SDI_IMAGE;
        item.ID = static_cast<HSCOPEITEM>(id);
        item.lParam = node->cookie;
        const HRESULT result = call(
            0, L"IComponentData::GetDisplayInfo",
            [&] { return listOf(L"mask", open ? L"SDI_OPENIMAGE" : L"SDI_IMAGE", L"lParam", item.lParam); },
            [&] { return m_data->GetDisplayInfo(&item); });
        number = SUCCEEDED(result) ? std::optional(open ? item.nOpenImage : item.nImage) : std::nullopt;
    }
    const int place = number ? m_scopeImages.find(*number) : -1;
    return place >= 0 ? place : open ? ImageStore::openFolder : ImageStore::folder;
}

void Instance::enter(unsigned view, const wchar_t* method, std::wstring arguments)
{
    m_host.trace()->entered({Direction::toSnapIn, m_number, view, m_host.depths.calls++, method, std::move(arguments)});
}

void Instance::leave(unsigned view, const wchar_t* method, HRESULT result)
{
    m_host.trace()->returned({Direction::toSnapIn, m_number, view, m_host.depths.calls, method, {}}, result);
}

void Instance::contain(const wchar_t* method, const GuardOutcome& outcome)
{
    if (outcome.kind == GuardOutcome::Kind::threw)
    {
        m_host.complain(m_number, std::wstring(L"A C++ exception came out of ") + method + L".");
        return;
    }
    m_state = SnapIn::State::dead;
    m_problem = L"The snap-in \"" + m_name + L"\" crashed in " + method + L" (fault " +
                describe(static_cast<unsigned long>(outcome.code)) + L" at " + describe(outcome.address) +
                L") and is out of use. Save your work elsewhere, close the console and open it again.";
    m_host.complain(m_number, m_problem);
    // What it put into the tree and the views goes when nothing is in the middle of using it.
    m_host.defer(
        [&host = m_host, root = m_root]
        {
            const ScopeNode* const node = host.scope.find(root);
            if (node == nullptr)
            {
                return;
            }
            node->owner->changed();
            for (ViewState* view : std::vector(host.views))
            {
                view->dropDead();
            }
            host.removeNodes(root, false);
        });
}

} // namespace Console
