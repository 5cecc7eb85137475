#include "ListSelection.h"

#include "ViewState.h"

namespace Console
{

Component* ListSelection::component() const
{
    if (m_target.kind == Target::Kind::node)
    {
        const ScopeNode* const node = m_view.host().scope.find(m_target.node);
        return node == nullptr ? nullptr : m_view.componentOf(*node->owner);
    }
    return m_target.kind == Target::Kind::none ? nullptr : m_view.current();
}

DataObject ListSelection::object() const
{
    Component* const component = this->component();
    if (component == nullptr)
    {
        return {};
    }
    switch (m_target.kind)
    {
    case Target::Kind::node:
        return component->instance().dataObject(m_target.node);
    case Target::Kind::row:
        return component->dataObject(m_target.cookie);
    case Target::Kind::rows:
        return component->dataObject(MMC_MULTI_SELECT_COOKIE);
    default:
        return {};
    }
}

Target ListSelection::present() const
{
    const ResultPane& pane = m_view.pane;
    Target target;
    const std::vector<int> rows = m_treeFocus ? std::vector<int>() : selectedRows();
    if (pane.kind == View::Pane::nothing || m_view.current() == nullptr)
    {
        return target;
    }
    if (pane.special != nullptr && !m_treeFocus)
    {
        target.kind = Target::Kind::special;
    }
    else if (rows.empty())
    {
        target.kind = Target::Kind::node;
        target.node = m_view.node();
        target.inTree = true;
    }
    else if (rows.size() > 1)
    {
        target.kind = Target::Kind::rows;
    }
    else if (pane.isVirtual())
    {
        target.kind = Target::Kind::row;
        target.row = target.cookie = rows.front(); // a virtual list's cookies are places
    }
    else
    {
        const Row& row = *pane.rows.at(rows.front());
        target.kind = row.node == NodeId::none ? Target::Kind::row : Target::Kind::node;
        target.node = row.node;
        target.row = row.id;
        target.cookie = row.cookie;
    }
    return target;
}

void ListSelection::announce(bool select)
{
    Component* const component = this->component();
    m_announced = select;
    if (component == nullptr)
    {
        return;
    }
    const bool scope = m_target.kind == Target::Kind::node || m_target.kind == Target::Kind::special;
    if (select)
    {
        component->verbs().reset(m_target.kind == Target::Kind::node ? MMC_VERB_OPEN : MMC_VERB_NONE);
    }
    const DataObject object = this->object();
    LPDATAOBJECT const sent = m_target.kind == Target::Kind::special ? m_view.pane.special : object.get();
    component->notify(sent, MMCN_SELECT, MAKELONG(scope, select), 0);
    if (select && m_target.kind == Target::Kind::rows)
    {
        object.objectTypes(); // extensions would be found by them; the snap-in expects the question
    }
    component->notifyControlbar(MMCN_SELECT, MAKELONG(m_target.inTree, select), reinterpret_cast<LPARAM>(sent));
    if (!select)
    {
        component->verbs().reset(MMC_VERB_NONE);
    }
    m_view.listener().verbsChanged();
    m_view.listener().toolbarsChanged();
}

void ListSelection::begin()
{
    m_treeFocus = true;
    m_temporary = false;
    m_target = present();
    announce(true);
}

void ListSelection::end()
{
    if (m_announced)
    {
        announce(false);
    }
    m_target = {};
    m_temporary = false;
}

void ListSelection::retarget()
{
    const HostState::Operation operation(m_view.host());
    if (m_announced)
    {
        announce(false);
    }
    m_temporary = false;
    m_target = present();
    announce(true);
}

void ListSelection::selectRows(const std::vector<int>& places)
{
    ResultPane& pane = m_view.pane;
    if (pane.kind != View::Pane::list)
    {
        return;
    }
    std::vector<int> wanted;
    for (const int place : places)
    {
        if (place >= 0 && place < pane.rowCount() && (wanted.empty() || pane.multiSelect()))
        {
            wanted.push_back(place);
        }
    }
    const HostState::Operation operation(m_view.host());
    // The snap-in hears of the old selection's end while its rows are still selected.
    if (m_announced)
    {
        announce(false);
    }
    for (const int place : selectedRows())
    {
        if (!pane.isVirtual())
        {
            ResultRows::select(*pane.rows.at(place), false);
        }
    }
    pane.virtualSelection.clear();
    for (const int place : wanted)
    {
        if (pane.isVirtual())
        {
            pane.virtualSelection.insert(place);
        }
        else if (Row* const row = pane.rows.at(place); row != nullptr)
        {
            ResultRows::select(*row, true);
        }
    }
    if (!wanted.empty())
    {
        Row* const last = pane.rows.at(wanted.back());
        pane.virtualFocus = wanted.back();
        pane.focus = last == nullptr ? 0 : last->id;
    }
    m_treeFocus = wanted.empty();
    m_temporary = false;
    m_target = present();
    announce(true);
}

std::vector<int> ListSelection::selectedRows() const
{
    const ResultPane& pane = m_view.pane;
    if (pane.isVirtual())
    {
        return {pane.virtualSelection.begin(), pane.virtualSelection.end()};
    }
    std::vector<int> places;
    places.reserve(static_cast<std::size_t>(pane.rows.selectedCount()));
    for (int place = pane.rows.nextSelected(0); place >= 0; place = pane.rows.nextSelected(place + 1))
    {
        places.push_back(place);
    }
    return places;
}

bool ListSelection::selected(int place) const
{
    const ResultPane& pane = m_view.pane;
    if (pane.isVirtual())
    {
        return pane.virtualSelection.contains(place);
    }
    const Row* const row = pane.rows.at(place);
    return row != nullptr && row->selected;
}

void ListSelection::focusTree(bool tree)
{
    if (m_treeFocus != tree && !m_temporary)
    {
        m_treeFocus = tree;
        const bool rowsMatter = !selectedRows().empty() || m_view.pane.special != nullptr;
        if (rowsMatter && m_view.node() != NodeId::none)
        {
            retarget();
        }
    }
}

void ListSelection::beginTemporary(NodeId node)
{
    const HostState::Operation operation(m_view.host());
    if (m_announced)
    {
        announce(false);
    }
    m_temporary = true;
    m_target = {};
    m_target.kind = Target::Kind::node;
    m_target.node = node;
    m_target.inTree = true;
    announce(true);
}

void ListSelection::endTemporary()
{
    if (m_temporary)
    {
        retarget();
    }
}

void ListSelection::forgetRow(LONG_PTR row, bool wasSelected)
{
    if (m_target.row == row || (m_target.kind == Target::Kind::rows && wasSelected))
    {
        forgetRows();
    }
}

void ListSelection::forgetNode(NodeId node)
{
    if (m_target.kind == Target::Kind::node && m_target.node == node)
    {
        m_target = {};
        m_announced = false;
    }
}

void ListSelection::forgetRows()
{
    const bool rows = m_target.kind == Target::Kind::row || m_target.kind == Target::Kind::rows ||
                      (m_target.kind == Target::Kind::node && !m_target.inTree);
    if (!rows)
    {
        return;
    }
    m_target = {};
    m_announced = false;
    if (Component* const component = m_view.current(); component != nullptr)
    {
        component->verbs().reset(MMC_VERB_NONE);
    }
    // What stays selected, or else the node, takes over when the snap-in is done.
    m_view.host().defer(
        [&host = m_view.host(), number = m_view.number()]
        {
            for (ViewState* view : host.views)
            {
                if (view->number() == number && !view->selection.m_announced && view->node() != NodeId::none)
                {
                    view->selection.m_treeFocus = view->selection.selectedRows().empty();
                    view->selection.retarget();
                    return;
                }
            }
        });
    m_view.listener().verbsChanged();
}

} // namespace Console
