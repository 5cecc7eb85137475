#include "Component.h"

#include "ViewState.h"
#include "faceCount.h"
#include "platform/com.h"

namespace Console
{

Component::Component(ViewState& view, Instance& instance) : m_view(view), m_instance(instance), m_images(view.images())
{
    const FaceOwner owner{&view.host(), &instance, instance.number(), view.number()};
    m_console = new ConsoleObject(owner, this);
    m_imageList = new ImageListFace(owner, L"the result image list", m_images);
    m_consoleVerb = new ConsoleVerbFace(owner, *this);
    m_controlbar = new ControlbarFace(owner, *this);
}

std::unique_ptr<Component> Component::create(ViewState& view, Instance& instance)
{
    auto component = std::make_unique<Component>(view, instance);
    return component->initialize() ? std::move(component) : nullptr;
}

unsigned Component::viewNumber() const
{
    return m_view.number();
}

bool Component::initialize()
{
    IComponent* made = nullptr;
    const HRESULT created = call(L"IComponentData::CreateComponent", noArguments,
                                 [&] { return m_instance.data()->CreateComponent(&made); });
    if (FAILED(created) || made == nullptr)
    {
        return false;
    }
    m_component = platform::takeReference(made);
    const HRESULT initialized =
        call(L"IComponent::Initialize", noArguments, [&] { return m_component->Initialize(m_console->console()); });
    return SUCCEEDED(initialized);
}

Component::~Component()
{
    if (m_component != nullptr)
    {
        if (m_controlbarGiven)
        {
            callOn<IExtendControlbar>(
                L"IExtendControlbar::SetControlbar", [] { return listOf(L"pControlbar", L"null"); },
                [](IExtendControlbar& bars) { return bars.SetControlbar(nullptr); });
        }
        call(
            L"IComponent::Destroy", [] { return listOf(L"cookie", 0); }, [&] { return m_component->Destroy(0); });
        IComponent* const component = m_component.Detach();
        ULONG left = 0;
        call(L"IComponent::Release", noArguments,
             [&]
             {
                 left = component->Release();
                 return S_OK;
             });
        if (left != 0 && m_instance.state() != SnapIn::State::dead)
        {
            m_view.host().complain(m_instance.number(), L"A component still has " + describe(left) +
                                                            L" references after the console let go of it.");
        }
    }
    m_controlbar->clear();
    m_console.Reset();
    m_imageList.Reset();
    m_consoleVerb.Reset();
    m_controlbar.Reset();
    countFaces(m_view.host(), m_instance, m_view.number());
}

HRESULT Component::notify(LPDATAOBJECT object, MMC_NOTIFY_TYPE event, LPARAM arg, LPARAM param)
{
    return call(
        L"IComponent::Notify", [&] { return listOf(L"object", object, L"event", event, L"arg", arg, L"param", param); },
        [&] { return m_component->Notify(object, event, arg, param); });
}

DataObject Component::dataObject(MMC_COOKIE cookie)
{
    IDataObject* object = nullptr;
    call(
        L"IComponent::QueryDataObject", [&] { return listOf(L"cookie", cookie, L"type", L"CCT_RESULT"); },
        [&] { return m_component->QueryDataObject(cookie, CCT_RESULT, &object); });
    if (IS_SPECIAL_DATAOBJECT(object))
    {
        return {};
    }
    return DataObject(m_instance, object);
}

HRESULT Component::notifyControlbar(MMC_NOTIFY_TYPE event, LPARAM arg, LPARAM param)
{
    if (!m_controlbarGiven)
    {
        const HRESULT given = callOn<IExtendControlbar>(
            L"IExtendControlbar::SetControlbar", [&] { return listOf(L"pControlbar", m_controlbar.Get()); },
            [&](IExtendControlbar& bars) { return bars.SetControlbar(m_controlbar.Get()); });
        m_controlbarGiven = given != E_NOINTERFACE;
        if (!m_controlbarGiven)
        {
            return given;
        }
    }
    return callOn<IExtendControlbar>(
        L"IExtendControlbar::ControlbarNotify", [&] { return listOf(L"event", event, L"arg", arg, L"param", param); },
        [&](IExtendControlbar& bars) { return bars.ControlbarNotify(event, arg, param); });
}

} // namespace Console
