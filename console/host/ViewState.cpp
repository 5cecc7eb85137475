#include "ViewState.h"

#include "ColumnStore.h"
#include "ViewType.h"

#include <algorithm>

namespace Console
{

ViewState::ViewState(HostState& host, ViewListener& listener)
    : m_host(host), m_listener(listener), m_number(++host.lastView)
{
    host.views.push_back(this);
}

ViewState::~ViewState()
{
    leave();
    m_components.clear();
    std::erase(m_host.views, this);
}

Component* ViewState::componentOf(const Instance& instance) const
{
    const auto found = m_components.find(&instance);
    return found == m_components.end() ? nullptr : found->second.get();
}

Component* ViewState::needComponent(Instance& instance)
{
    if (Component* const present = componentOf(instance); present != nullptr)
    {
        return present;
    }
    std::unique_ptr<Component> made = Component::create(*this, instance);
    if (made == nullptr)
    {
        return nullptr;
    }
    Component& component = *(m_components[&instance] = std::move(made));
    if (m_active)
    {
        const DataObject object = instance.dataObject(instance.root());
        component.notify(object.get(), MMCN_ACTIVATE, TRUE, 0);
    }
    return &component;
}

void ViewState::select(NodeId node)
{
    if (m_host.depths.operations > 0)
    {
        m_host.defer(
            [&host = m_host, number = m_number, node]
            {
                for (ViewState* view : std::vector(host.views))
                {
                    if (view->number() == number && (node == NodeId::none || host.scope.find(node) != nullptr))
                    {
                        view->select(node);
                    }
                }
            });
        return;
    }
    const HostState::Operation operation(m_host);
    leave();
    enter(node);
}

void ViewState::leave()
{
    if (m_node == NodeId::none)
    {
        return;
    }
    const HostState::Operation operation(m_host);
    selection.end();
    if (m_current != nullptr)
    {
        if (pane.shown)
        {
            const DataObject object = m_current->instance().dataObject(m_node);
            m_current->notify(object.get(), MMCN_SHOW, FALSE, static_cast<LPARAM>(m_node));
        }
        m_current->images().clear();
    }
    m_node = NodeId::none;
    m_current = nullptr;
    pane.clear();
    m_images.clear();
    m_listener.paneChanged();
    m_listener.columnsChanged();
    m_listener.rowsChanged();
    m_listener.statusTextChanged();
    m_listener.descriptionChanged();
    m_listener.toolbarsChanged();
    m_listener.verbsChanged();
}

void ViewState::enter(NodeId id)
{
    const ScopeNode* const node = m_host.scope.find(id);
    m_node = node == nullptr ? NodeId::none : id;
    m_listener.nodeSelected(m_node);
    if (node == nullptr)
    {
        return;
    }
    Instance& instance = *node->owner;
    const bool expanded = instance.expand(id);
    if (m_host.scope.find(id) == nullptr)
    {
        m_node = NodeId::none;
        m_listener.nodeSelected(m_node);
        return;
    }
    m_current = expanded ? needComponent(instance) : nullptr;
    if (m_current == nullptr)
    {
        showMessage(!instance.problem().empty() ? instance.problem()
                                                : L"The snap-in \"" + instance.name() + L"\" offers no view here.");
        return;
    }
    show(id, instance.dataObject(id));
}

void ViewState::show(NodeId id, const DataObject& object)
{
    pane.columnSet = object.columnSet();
    askViewType(m_host.scope.find(id)->cookie);
    ImageListFace& images = m_current->imageList();
    images.addReference(); // for the snap-in that releases what it only borrows
    const ULONG references = images.references();
    m_current->notify(object.get(), MMCN_ADD_IMAGES, reinterpret_cast<LPARAM>(static_cast<IImageList*>(&images)),
                      static_cast<LPARAM>(id));
    if (images.references() < references)
    {
        m_host.complain(m_current->instance().number(),
                        L"The image list of MMCN_ADD_IMAGES was released by a snap-in that does not own it.");
    }
    else
    {
        images.dropReference();
    }
    pane.shown = true;
    m_current->notify(object.get(), MMCN_SHOW, TRUE, static_cast<LPARAM>(id));
    const ScopeNode* const node = m_host.scope.find(id);
    if (node == nullptr || m_node != id)
    {
        return; // the snap-in took it away in the meantime
    }
    if (pane.kind == View::Pane::list)
    {
        if (pane.showsNodes())
        {
            pane.nodeRowsIn = true;
            for (const ScopeNode* child = node->first; child != nullptr; child = child->next)
            {
                insertNodeRow(*child);
            }
        }
        m_host.columns->apply(m_current->instance().clsid(), pane);
        sorter.applySaved();
    }
    m_listener.paneChanged();
    m_listener.columnsChanged();
    m_listener.rowsChanged();
    selection.begin();
}

void ViewState::askViewType(MMC_COOKIE cookie)
{
    const ViewTypeAnswer answer = askComponentForViewType(*m_current, cookie);
    pane.options = answer.options;
    pane.kind = answer.special == nullptr ? View::Pane::list : View::Pane::message;
    pane.special = answer.special;
    pane.message = answer.message;
}

void ViewState::showMessage(const std::wstring& message)
{
    pane.kind = View::Pane::message;
    pane.message = message;
    m_listener.paneChanged();
}

void ViewState::activate(bool active)
{
    const HostState::Operation operation(m_host);
    m_active = active;
    if (m_current != nullptr)
    {
        const DataObject object = m_current->instance().dataObject(m_node);
        m_current->notify(object.get(), MMCN_ACTIVATE, active, 0);
    }
}

void ViewState::minimize(bool minimized)
{
    const HostState::Operation operation(m_host);
    if (m_current != nullptr)
    {
        const DataObject object = m_current->instance().dataObject(m_node);
        m_current->notify(object.get(), MMCN_MINIMIZED, minimized, 0);
    }
}

void ViewState::dropInstance(const Instance& instance)
{
    const ScopeNode* const node = m_host.scope.find(m_node);
    if (node != nullptr && node->owner == &instance)
    {
        leave();
        m_listener.nodeSelected(m_node);
    }
    m_components.erase(&instance);
}

void ViewState::dropDead()
{
    const ScopeNode* const node = m_host.scope.find(m_node);
    if (node == nullptr || node->owner->state() != SnapIn::State::dead)
    {
        return;
    }
    const Instance& instance = *node->owner;
    leave();
    m_components.erase(&instance);
    m_node = instance.root();
    m_listener.nodeSelected(m_node);
    showMessage(instance.problem());
}

void ViewState::nodeInserted(const ScopeNode& node)
{
    if (pane.nodeRowsIn && node.parent != nullptr && node.parent->id == m_node)
    {
        insertNodeRow(node);
        m_listener.rowsChanged();
    }
}

void ViewState::insertNodeRow(const ScopeNode& node)
{
    const Row* const before = node.previous == nullptr ? nullptr : pane.rows.findNode(node.previous->id);
    pane.rows.insert(before == nullptr ? 0 : ResultRows::placeOf(*before) + 1, node.cookie, node.id);
}

void ViewState::nodeRemoving(const ScopeNode& node)
{
    selection.forgetNode(node.id);
    if (Row* const row = pane.rows.findNode(node.id); row != nullptr)
    {
        selection.forgetRow(row->id, row->selected);
        pane.rows.erase(*row);
        m_listener.rowsChanged();
    }
}

HRESULT ViewState::askRow(int place, RESULTDATAITEM& item, std::wstring* text)
{
    const Row* const row = pane.rows.at(place);
    if (m_current == nullptr || (row == nullptr && !pane.isVirtual()))
    {
        return E_FAIL;
    }
    if (row != nullptr)
    {
        item.bScopeItem = row->node != NodeId::none;
        item.itemID = row->id;
        item.lParam = row->cookie;
    }
    else
    {
        item.nIndex = place;
    }
    constexpr std::size_t longestText = 0x8000; // more is a missing end
    return m_current->call(
        L"IComponent::GetDisplayInfo",
        [&]
        {
            return listOf(L"mask", item.mask, L"bScopeItem", item.bScopeItem, L"lParam", item.lParam, L"nIndex",
                          item.nIndex, L"nCol", item.nCol);
        },
        [&]
        {
            const HRESULT result = m_current->get()->GetDisplayInfo(&item);
            if (SUCCEEDED(result) && text != nullptr && item.str != nullptr && item.str != platform::askForText())
            {
                text->assign(item.str, wcsnlen(item.str, longestText));
            }
            return result;
        });
}

std::wstring ViewState::rowText(int place, int column)
{
    const Row* const row = pane.rows.at(place);
    if (column < 0 || place < 0 || place >= pane.rowCount())
    {
        return {};
    }
    if (row != nullptr && row->text != nullptr)
    {
        return column == 0 ? *row->text : std::wstring();
    }
    RESULTDATAITEM item{};
    item.mask = RDI_STR;
    item.nCol = column;
    std::wstring text;
    const NodeId node = row == nullptr ? NodeId::none : row->node;
    askRow(place, item, &text);
    if (text.empty() && column == 0 && node != NodeId::none)
    {
        return m_host.tree.text(node);
    }
    return text;
}

int ViewState::rowImage(int place)
{
    const Row* const row = pane.rows.at(place);
    if (m_current == nullptr || place < 0 || place >= pane.rowCount())
    {
        return -1;
    }
    const bool node = row != nullptr && row->node != NodeId::none;
    int number = row == nullptr || node ? MMC_IMAGECALLBACK : row->image;
    if (row != nullptr && !node && !row->hasImage)
    {
        return -1;
    }
    if (number == MMC_IMAGECALLBACK)
    {
        RESULTDATAITEM item{};
        item.mask = RDI_IMAGE;
        item.nImage = -1;
        number = SUCCEEDED(askRow(place, item, nullptr)) ? item.nImage : -1;
    }
    const int found = m_current->images().find(number);
    return found < 0 && node ? ImageStore::folder : found;
}

void ViewState::cacheHint(int first, int last)
{
    if (m_current != nullptr && pane.isVirtual())
    {
        m_current->callOn<IResultOwnerData>(
            L"IResultOwnerData::CacheHint", [&] { return listOf(L"first", first, L"last", last); },
            [&](IResultOwnerData& owner) { return owner.CacheHint(first, last); });
    }
}

int ViewState::findRow(const std::wstring& text, int start)
{
    const int count = pane.rowCount();
    if (m_current != nullptr && pane.isVirtual())
    {
        std::wstring searched = text;
        RESULTFINDINFO info{searched.data(), start, RFI_PARTIAL | RFI_WRAP};
        int found = -1;
        const HRESULT result = m_current->callOn<IResultOwnerData>(
            L"IResultOwnerData::FindItem", [&] { return listOf(L"text", text.c_str(), L"start", start); },
            [&](IResultOwnerData& owner) { return owner.FindItem(&info, &found); });
        return result == S_OK && found >= 0 && found < count ? found : -1;
    }
    const int length = static_cast<int>(text.size());
    for (int step = 0; step < count; ++step)
    {
        const int row = (start + step) % count;
        const std::wstring shown = rowText(row, 0);
        if (static_cast<int>(shown.size()) >= length &&
            CompareStringW(LOCALE_USER_DEFAULT, NORM_IGNORECASE, shown.c_str(), length, text.c_str(), length) ==
                CSTR_EQUAL)
        {
            return row;
        }
    }
    return -1;
}

} // namespace Console
