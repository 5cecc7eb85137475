#include "MenuSession.h"

#include "MenuCallbackFace.h"
#include "ViewState.h"

namespace Console
{

using Microsoft::WRL::ComPtr;

std::unique_ptr<MenuSession> MenuSession::onNode(ViewState& view, NodeId id)
{
    auto session = std::make_unique<MenuSession>(view);
    const ScopeNode* const node = view.host().scope.find(id);
    const HostState::Operation operation(view.host());
    if (node == nullptr || !node->owner->load() || view.needComponent(*node->owner) == nullptr)
    {
        return session;
    }
    const Target& target = view.selection.target();
    if (target.kind != Target::Kind::node || target.node != id)
    {
        view.selection.beginTemporary(id);
        session->m_temporary = true;
    }
    session->build();
    return session;
}

std::unique_ptr<MenuSession> MenuSession::onRows(ViewState& view)
{
    auto session = std::make_unique<MenuSession>(view);
    const HostState::Operation operation(view.host());
    view.selection.focusTree(false);
    if (view.selection.component() != nullptr)
    {
        session->build();
    }
    return session;
}

MenuSession::~MenuSession()
{
    if (m_temporary)
    {
        m_view.selection.endTemporary();
    }
}

void MenuSession::build()
{
    const Target& target = m_view.selection.target();
    constexpr long items = CCM_INSERTIONALLOWED_TOP | CCM_INSERTIONALLOWED_NEW | CCM_INSERTIONALLOWED_TASK;
    if (target.kind == Target::Kind::node)
    {
        const NodeId node = target.node;
        ask(true, items);
        if (node == m_view.node())
        {
            ask(false, CCM_INSERTIONALLOWED_VIEW);
        }
    }
    else
    {
        ask(false, items);
    }
    addVerbs();
    m_items = m_model.build();
}

void MenuSession::ask(bool componentData, long allowed)
{
    Component* const component = m_view.selection.component();
    if (component == nullptr)
    {
        return;
    }
    Instance& instance = component->instance();
    const CommandObject object = CommandObject::of(m_view);
    m_callers.push_back({componentData, allowed});
    const unsigned view = componentData ? 0 : m_view.number();
    const ComPtr<MenuCallbackFace> callback(new MenuCallbackFace({&m_view.host(), &instance, instance.number(), view},
                                                                 m_model, static_cast<unsigned>(m_callers.size()),
                                                                 allowed));
    // The real console's callbacks take items for sections beyond the allowed ones from nobody, whatever the snap-in
    // makes of this number.
    __LONG32 asked = static_cast<__LONG32>(allowed);
    IUnknown* const extension =
        componentData ? static_cast<IUnknown*>(instance.data()) : static_cast<IUnknown*>(component->get());
    instance.callOn<IExtendContextMenu>(
        view, extension, L"IExtendContextMenu::AddMenuItems",
        [&] { return listOf(L"object", object.get(), L"allowed", allowed); },
        [&](IExtendContextMenu& menu) { return menu.AddMenuItems(object.get(), callback.Get(), &asked); });
    callback->disconnect();
}

void MenuSession::addVerbs()
{
    struct Text
    {
        MMC_CONSOLE_VERB verb;
        const wchar_t* text;
    };
    static constexpr Text texts[] = {
        {MMC_VERB_OPEN, L"&Open"},       {MMC_VERB_CUT, L"Cu&t"},       {MMC_VERB_COPY, L"&Copy"},
        {MMC_VERB_PASTE, L"&Paste"},     {MMC_VERB_DELETE, L"&Delete"}, {MMC_VERB_RENAME, L"Rena&me"},
        {MMC_VERB_REFRESH, L"Re&fresh"}, {MMC_VERB_PRINT, L"P&rint"},   {MMC_VERB_PROPERTIES, L"P&roperties"},
    };
    Component* const component = m_view.selection.component();
    for (const auto& [verb, text] : texts)
    {
        const View::VerbState state = m_view.commands.state(verb);
        if (state.visible)
        {
            m_model.addVerb(verb, text, state.enabled, component->verbs().defaultVerb == verb);
        }
    }
}

void MenuSession::run(unsigned command)
{
    const MenuModel::Command* const found = m_model.find(command);
    Component* const component = m_view.selection.component();
    if (found == nullptr || component == nullptr)
    {
        return;
    }
    const HostState::Operation operation(m_view.host());
    if (found->caller == 0)
    {
        m_view.commands.run(static_cast<MMC_CONSOLE_VERB>(found->id));
        return;
    }
    const bool componentData = m_callers[found->caller - 1].componentData;
    Instance& instance = component->instance();
    const CommandObject object = CommandObject::of(m_view);
    const long id = found->id;
    instance.callOn<IExtendContextMenu>(
        componentData ? 0 : m_view.number(),
        componentData ? static_cast<IUnknown*>(instance.data()) : static_cast<IUnknown*>(component->get()),
        L"IExtendContextMenu::Command", [&] { return listOf(L"id", id, L"object", object.get()); },
        [&](IExtendContextMenu& menu) { return menu.Command(static_cast<__LONG32>(id), object.get()); });
}

} // namespace Console
