#include "console/host/View.h"

#include "ColumnStore.h"
#include "MenuSession.h"
#include "ViewState.h"
#include "describe.h"

namespace Console
{

View::View(std::unique_ptr<ViewState> state) : m_state(std::move(state)) {}
View::~View() = default;

unsigned View::number() const
{
    return m_state->number();
}

void View::selectNode(NodeId node)
{
    m_state->select(node);
}

NodeId View::selectedNode() const
{
    return m_state->node();
}

void View::activate(bool active)
{
    m_state->activate(active);
}

void View::minimize(bool minimized)
{
    m_state->minimize(minimized);
}

View::Pane View::pane() const
{
    return m_state->pane.kind;
}

const std::wstring& View::message() const
{
    return m_state->pane.message;
}

int View::viewMode() const
{
    return m_state->pane.mode;
}

void View::setViewMode(int mode)
{
    if (mode >= MMCLV_VIEWSTYLE_ICON && mode <= MMCLV_VIEWSTYLE_FILTERED)
    {
        m_state->pane.mode = mode;
        m_state->listener().paneChanged();
    }
}

bool View::sortable() const
{
    return m_state->pane.kind == Pane::list && (m_state->pane.style & MMC_NOSORTHEADER) == 0;
}

bool View::multiSelect() const
{
    return m_state->pane.multiSelect();
}

const std::vector<Column>& View::columns() const
{
    return m_state->pane.columns;
}

void View::setColumnWidth(int column, int width)
{
    ResultPane& pane = m_state->pane;
    if (column >= 0 && column < static_cast<int>(pane.columns.size()) && m_state->current() != nullptr)
    {
        pane.columns[static_cast<std::size_t>(column)].width = width;
        m_state->host().columns->saveWidths(m_state->current()->instance().clsid(), pane);
    }
}

std::wstring View::columnSet() const
{
    if (m_state->current() == nullptr || m_state->pane.kind != Pane::list)
    {
        return {};
    }
    constexpr wchar_t digits[] = L"0123456789ABCDEF";
    std::wstring name = describe(m_state->current()->instance().clsid()) + L" ";
    for (const BYTE byte : m_state->pane.columnSet)
    {
        name += digits[byte >> 4];
        name += digits[byte & 0xF];
    }
    return name;
}

void View::clickColumn(int column)
{
    m_state->sorter.click(column);
}

int View::sortColumn() const
{
    return m_state->pane.sortArrow ? m_state->pane.sortColumn : -1;
}

bool View::sortDescending() const
{
    return m_state->pane.sortDescending;
}

int View::rowCount() const
{
    return m_state->pane.rowCount();
}

std::wstring View::rowText(int row, int column) const
{
    return m_state->rowText(row, column);
}

int View::rowImage(int row) const
{
    return m_state->rowImage(row);
}

int View::rowIndent(int row) const
{
    const Row* const found = m_state->pane.rows.at(row);
    return found == nullptr ? 0 : found->indent;
}

NodeId View::rowNode(int row) const
{
    const Row* const found = m_state->pane.rows.at(row);
    return found == nullptr ? NodeId::none : found->node;
}

void View::cacheHint(int first, int last) const
{
    m_state->cacheHint(first, last);
}

int View::findRow(const std::wstring& text, int start) const
{
    return m_state->findRow(text, start);
}

HIMAGELIST View::smallImages() const
{
    return m_state->images().small();
}

HIMAGELIST View::largeImages() const
{
    return m_state->images().large();
}

void View::selectRows(const std::vector<int>& rows)
{
    m_state->selection.selectRows(rows);
}

std::vector<int> View::selectedRows() const
{
    return m_state->selection.selectedRows();
}

bool View::rowSelected(int row) const
{
    return m_state->selection.selected(row);
}

int View::focusedRow() const
{
    ResultPane& pane = m_state->pane;
    if (pane.isVirtual())
    {
        return pane.virtualFocus;
    }
    const Row* const row = pane.rows.find(pane.focus);
    return row == nullptr ? -1 : ResultRows::placeOf(*row);
}

void View::setFocusedRow(int row)
{
    ResultPane& pane = m_state->pane;
    const Row* const found = pane.rows.at(row);
    pane.virtualFocus = row;
    pane.focus = found == nullptr ? 0 : found->id;
}

void View::focusTree(bool tree)
{
    m_state->selection.focusTree(tree);
}

View::VerbState View::verb(MMC_CONSOLE_VERB verb) const
{
    return m_state->commands.state(verb);
}

MMC_CONSOLE_VERB View::defaultVerb() const
{
    Component* const component = m_state->selection.component();
    return component == nullptr ? MMC_VERB_NONE : component->verbs().defaultVerb;
}

void View::runVerb(MMC_CONSOLE_VERB verb)
{
    m_state->commands.run(verb);
}

void View::activateRow(int row)
{
    m_state->commands.activateRow(row);
}

bool View::renameNode(NodeId node, const std::wstring& name)
{
    return m_state->commands.renameNode(node, name);
}

bool View::renameRow(int row, const std::wstring& name)
{
    return m_state->commands.renameRow(row, name);
}

ContextMenu View::nodeMenu(NodeId node)
{
    return ContextMenu(MenuSession::onNode(*m_state, node));
}

ContextMenu View::rowMenu()
{
    return ContextMenu(MenuSession::onRows(*m_state));
}

ContextMenu View::paneMenu()
{
    return nodeMenu(m_state->node());
}

std::vector<Toolbar> View::toolbars() const
{
    std::vector<Toolbar> bars;
    if (Component* const component = m_state->current(); component != nullptr)
    {
        for (const auto& toolbar : component->controlbar().toolbars())
        {
            if (toolbar->attached)
            {
                bars.push_back(toolbar->model());
            }
        }
    }
    return bars;
}

void View::pressToolbarButton(unsigned bar, int command)
{
    m_state->commands.pressToolbarButton(bar, command);
}

std::vector<MenuButton> View::menuButtons() const
{
    std::vector<MenuButton> buttons;
    if (Component* const component = m_state->current(); component != nullptr)
    {
        for (const auto& group : component->controlbar().menuButtons())
        {
            if (group->attached)
            {
                buttons.insert(buttons.end(), group->model().begin(), group->model().end());
            }
        }
    }
    return buttons;
}

void View::pressMenuButton(unsigned group, int command, int x, int y)
{
    m_state->commands.pressMenuButton(group, command, x, y);
}

const View::Status& View::status() const
{
    return m_state->pane.status;
}

const std::wstring& View::description() const
{
    return m_state->pane.description;
}

} // namespace Console
