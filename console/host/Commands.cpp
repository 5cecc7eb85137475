#include "Commands.h"

#include "Clipboard.h"
#include "CompositeDataObject.h"
#include "PropertySheets.h"
#include "ViewState.h"

namespace Console
{

CommandObject::CommandObject() = default;
CommandObject::CommandObject(CommandObject&&) noexcept = default;
CommandObject& CommandObject::operator=(CommandObject&&) noexcept = default;

CommandObject::~CommandObject()
{
    if (m_composite != nullptr)
    {
        m_composite->disconnect(); // the object in it goes now
    }
}

CommandObject CommandObject::of(const ViewState& view)
{
    CommandObject made;
    const Target& target = view.selection.target();
    if (target.kind == Target::Kind::special)
    {
        made.m_special = view.pane.special;
        return made;
    }
    made.m_object = view.selection.object();
    if (target.kind == Target::Kind::rows && made.m_object)
    {
        Instance& instance = view.current()->instance();
        made.m_composite =
            new CompositeDataObject({&view.host(), &instance, instance.number(), view.number()}, made.m_object.get());
    }
    return made;
}

LPDATAOBJECT CommandObject::get() const
{
    return m_composite != nullptr ? m_composite.Get() : own();
}

View::VerbState Commands::state(MMC_CONSOLE_VERB verb) const
{
    Component* const component = m_view.selection.component();
    if (component == nullptr || !VerbStates::exists(verb))
    {
        return {};
    }
    const VerbStates& verbs = component->verbs();
    View::VerbState state{verbs.visible(verb), verbs.enabled(verb)};
    if (verb == MMC_VERB_CUT && verbs.enabled(MMC_VERB_COPY) && verbs.enabled(MMC_VERB_DELETE))
    {
        state = {true, true};
    }
    const bool several = m_view.selection.target().kind == Target::Kind::rows;
    const bool single = verb == MMC_VERB_OPEN || verb == MMC_VERB_RENAME || verb == MMC_VERB_REFRESH;
    state.enabled = state.enabled && !(several && single) && (verb != MMC_VERB_PASTE || canPaste());
    return state;
}

void Commands::run(MMC_CONSOLE_VERB verb)
{
    if (!state(verb).enabled)
    {
        return;
    }
    const HostState::Operation operation(m_view.host());
    switch (verb)
    {
    case MMC_VERB_OPEN:
        return open();
    case MMC_VERB_COPY:
        return copy(false);
    case MMC_VERB_CUT:
        return copy(true);
    case MMC_VERB_PASTE:
        return paste();
    case MMC_VERB_DELETE:
        return remove();
    case MMC_VERB_PROPERTIES:
        return properties();
    case MMC_VERB_RENAME:
        return rename();
    case MMC_VERB_REFRESH:
        return notifyTarget(MMCN_REFRESH);
    case MMC_VERB_PRINT:
        return notifyTarget(MMCN_PRINT);
    default:
        return;
    }
}

void Commands::open()
{
    if (m_view.selection.target().kind == Target::Kind::node)
    {
        m_view.select(m_view.selection.target().node);
    }
}

void Commands::copy(bool cut)
{
    Component* const component = m_view.selection.component();
    DataObject object = m_view.selection.object();
    if (component != nullptr && object)
    {
        m_view.host().clipboard->put(component->instance(), m_view.number(), std::move(object), cut);
        m_view.listener().verbsChanged();
    }
}

bool Commands::canPaste() const
{
    IDataObject* const source = m_view.host().clipboard->object();
    Component* const component = m_view.selection.component();
    if (source == nullptr || component == nullptr)
    {
        return false;
    }
    const CommandObject target = CommandObject::of(m_view);
    DWORD flags = 0;
    return component->notify(target.get(), MMCN_QUERY_PASTE, reinterpret_cast<LPARAM>(source),
                             reinterpret_cast<LPARAM>(&flags)) == S_OK;
}

void Commands::paste()
{
    HostState& host = m_view.host();
    Component* const component = m_view.selection.component();
    const CommandObject target = CommandObject::of(m_view);
    const bool cut = host.clipboard->cut();
    LPDATAOBJECT moved = nullptr;
    const HRESULT pasted =
        component->notify(target.own(), MMCN_PASTE, reinterpret_cast<LPARAM>(host.clipboard->object()),
                          cut ? reinterpret_cast<LPARAM>(&moved) : 0);
    if (!cut || IS_SPECIAL_DATAOBJECT(moved))
    {
        return;
    }
    const DataObject owned(component->instance(), moved);
    Instance* const source = host.clipboard->source();
    for (ViewState* view : std::vector(host.views))
    {
        Component* const from = source == nullptr ? nullptr : view->componentOf(*source);
        if (SUCCEEDED(pasted) && view->number() == host.clipboard->view() && from != nullptr)
        {
            from->notify(nullptr, MMCN_CUTORMOVE, reinterpret_cast<LPARAM>(moved), 0);
        }
    }
    host.clipboard->clear(nullptr);
    m_view.listener().verbsChanged();
}

void Commands::notifyTarget(MMC_NOTIFY_TYPE event)
{
    Component* const component = m_view.selection.component();
    const Target& target = m_view.selection.target();
    // A refresh is always about a node of the tree: the row's, or the one whose rows are shown.
    if (event == MMCN_REFRESH && target.kind == Target::Kind::row)
    {
        const DataObject object = component->instance().dataObject(m_view.node());
        component->notify(object.get(), event, 0, 0);
        return;
    }
    const CommandObject object = CommandObject::of(m_view);
    component->notify(object.own(), event, 0, 0);
}

void Commands::remove()
{
    Component* const component = m_view.selection.component();
    const CommandObject object = CommandObject::of(m_view);
    if (m_view.selection.target().kind == Target::Kind::node)
    {
        component->instance().notify(object.own(), MMCN_DELETE, 0, 0);
    }
    else
    {
        component->notify(object.own(), MMCN_DELETE, 0, 0);
    }
}

void Commands::rename()
{
    const Target& target = m_view.selection.target();
    if (target.kind == Target::Kind::node && target.inTree)
    {
        m_view.listener().renameNodeAsked(target.node);
        return;
    }
    const std::vector<int> rows = m_view.selection.selectedRows();
    if (rows.size() == 1)
    {
        m_view.listener().renameRowAsked(rows.front());
    }
}

void Commands::properties()
{
    Component& component = *m_view.selection.component();
    Instance& instance = component.instance();
    const bool node = m_view.selection.target().kind == Target::Kind::node;
    if (m_view.selection.target().kind != Target::Kind::special &&
        m_view.host().sheets->open(instance, node ? nullptr : &component, m_view))
    {
        return;
    }
    // Without pages of its own the snap-in may answer the command with a dialog.
    const CommandObject object = CommandObject::of(m_view);
    component.notify(object.get(), MMCN_BTN_CLICK, 0, MMC_VERB_PROPERTIES);
}

void Commands::activateRow(int row)
{
    if (row < 0 || row >= m_view.pane.rowCount() || m_view.current() == nullptr)
    {
        return;
    }
    const HostState::Operation operation(m_view.host());
    const std::vector<int> selected = m_view.selection.selectedRows();
    if (selected != std::vector{row})
    {
        m_view.selection.selectRows({row});
    }
    m_view.selection.focusTree(false);
    Component* const component = m_view.selection.component();
    if (component == nullptr)
    {
        return;
    }
    HRESULT handled;
    {
        const DataObject object = m_view.selection.object();
        handled = component->notify(object.get(), MMCN_DBLCLICK, 0, 0);
    }
    if (handled == S_OK || m_view.selection.component() != component)
    {
        return;
    }
    if (component->verbs().defaultVerb == MMC_VERB_OPEN)
    {
        open();
    }
    else if (component->verbs().defaultVerb == MMC_VERB_PROPERTIES)
    {
        run(MMC_VERB_PROPERTIES);
    }
}

bool Commands::renameNode(NodeId id, const std::wstring& name)
{
    const ScopeNode* const node = m_view.host().scope.find(id);
    if (node == nullptr || !node->owner->ready())
    {
        return false;
    }
    const HostState::Operation operation(m_view.host());
    Instance& instance = *node->owner;
    std::wstring text = name;
    const DataObject object = instance.dataObject(id);
    const bool taken = instance.notify(object.get(), MMCN_RENAME, 0, reinterpret_cast<LPARAM>(text.data())) == S_OK;
    if (taken)
    {
        m_view.host().tellListeners([&](HostListener& listener) { listener.nodeChanged(id); });
    }
    return taken;
}

bool Commands::renameRow(int place, const std::wstring& name)
{
    Component* const component = m_view.current();
    const Row* const row = m_view.pane.rows.at(place);
    if (component == nullptr || place < 0 || place >= m_view.pane.rowCount())
    {
        return false;
    }
    if (row != nullptr && row->node != NodeId::none)
    {
        return renameNode(row->node, name);
    }
    const HostState::Operation operation(m_view.host());
    std::wstring text = name;
    const DataObject object = component->dataObject(row == nullptr ? place : row->cookie);
    const bool taken = component->notify(object.get(), MMCN_RENAME, 0, reinterpret_cast<LPARAM>(text.data())) == S_OK;
    if (taken)
    {
        m_view.listener().rowsChanged();
    }
    return taken;
}

void Commands::pressToolbarButton(unsigned bar, int command)
{
    Component* const component = m_view.current();
    if (component == nullptr)
    {
        return;
    }
    for (const auto& toolbar : component->controlbar().toolbars())
    {
        for (const ToolbarButton& button : toolbar->model().buttons)
        {
            if (toolbar->attached && toolbar->model().id == bar && !button.separator && button.command == command &&
                button.enabled && !button.hidden)
            {
                const HostState::Operation operation(m_view.host());
                const CommandObject object = CommandObject::of(m_view);
                component->notifyControlbar(MMCN_BTN_CLICK, reinterpret_cast<LPARAM>(object.get()), command);
                return;
            }
        }
    }
}

void Commands::pressMenuButton(unsigned group, int command, int x, int y)
{
    Component* const component = m_view.current();
    if (component == nullptr)
    {
        return;
    }
    for (const auto& menuButton : component->controlbar().menuButtons())
    {
        for (const MenuButton& button : menuButton->model())
        {
            if (menuButton->attached && button.id == group && button.command == command && button.enabled &&
                !button.hidden)
            {
                const HostState::Operation operation(m_view.host());
                const CommandObject object = CommandObject::of(m_view);
                MENUBUTTONDATA data{command, x, y};
                component->notifyControlbar(MMCN_MENU_BTNCLICK, reinterpret_cast<LPARAM>(object.get()),
                                            reinterpret_cast<LPARAM>(&data));
                return;
            }
        }
    }
}

} // namespace Console
