#include "ViewController.h"

#include "ColumnMemory.h"
#include "MenuPresenter.h"
#include "Restore.h"
#include "WaitCursor.h"
#include "clipboardText.h"
#include "rowText.h"

#include <utility>

namespace Console
{

ViewController::ViewController(Host& host, NodeId top, bool keepWidths, Frame& frame)
    : m_host(host),
      m_frame(frame),
      m_keepWidths(keepWidths),
      m_view(host.openView(*this)),
      m_tree(std::make_unique<TreePane>(frame.window(), host.tree(), top, static_cast<TreePane::Owner&>(*this))),
      m_results(std::make_unique<DetailsPane>(frame.window(), *m_view, static_cast<ResultList::Owner&>(*this)))
{
    m_host.addListener(*this);
}

ViewController::~ViewController()
{
    m_host.removeListener(*this);
    // No pane may ask a view that is closing; the view in turn still reports what goes.
    m_results.reset();
    m_tree.reset();
    m_view.reset();
}

void ViewController::setAppearance(HFONT font, int dpi)
{
    m_tree->setAppearance(font, dpi);
    m_results->setAppearance(font, dpi);
}

// --- order -----------------------------------------------------------------------------------------------------------

void ViewController::note(unsigned changes)
{
    m_changes |= changes;
    wakeUp();
}

void ViewController::later(std::function<void()> action)
{
    m_later.push_back(std::move(action));
    wakeUp();
}

void ViewController::wakeUp()
{
    if (!m_woken && m_results)
    {
        m_woken = PostMessageW(m_frame.window(), pendingMessage, 0, 0) != 0;
    }
}

void ViewController::processPending()
{
    m_woken = false;
    if (!m_acting && !m_menuOpen)
    {
        act([] {});
        return;
    }
    takeChanges();
}

bool ViewController::act(const std::function<void()>& action)
{
    if (m_acting)
    {
        return false;
    }
    {
        const Restore acting(m_acting, true);
        const WaitCursor wait;
        runLater();
        action();
    }
    takeChanges();
    if (!m_later.empty())
    {
        wakeUp();
    }
    return true;
}

void ViewController::runLater()
{
    // What is added meanwhile waits for the next time.
    std::deque<std::function<void()>> actions;
    actions.swap(m_later);
    for (const auto& action : actions)
    {
        action();
        takeChanges();
    }
}

void ViewController::takeChanges()
{
    const unsigned changes = std::exchange(m_changes, 0U);
    if (changes == 0 || !m_results)
    {
        return;
    }
    if ((changes & node) != 0)
    {
        m_tree->mark(m_view->selectedNode());
    }
    if ((changes & pane) != 0)
    {
        m_results->takePane();
    }
    if ((changes & (pane | columns)) != 0)
    {
        if (m_keepWidths)
        {
            applyRememberedWidths(*m_view);
        }
        m_results->list().takeColumns();
    }
    if ((changes & (pane | rows | columns)) != 0)
    {
        m_results->list().takeRows();
    }
    else if ((changes & selection) != 0)
    {
        m_results->list().takeSelection();
    }
    if ((changes & looks) != 0)
    {
        InvalidateRect(m_results->list().control(), nullptr, FALSE);
    }
    if ((changes & description) != 0)
    {
        m_results->takeDescription();
    }
    m_frame.viewChanged(changes);
}

// --- what the program asks for
// -----------------------------------------------------------------------------------------

void ViewController::selectNode(NodeId chosen)
{
    act(
        [&]
        {
            m_view->selectNode(chosen);
            tellFocus();
        });
}

void ViewController::selectRow(int row)
{
    act(
        [&]
        {
            m_view->setFocusedRow(row);
            m_view->selectRows({row});
            note(selection);
        });
    SetFocus(m_results->list().control());
}

void ViewController::goBack()
{
    selectNode(m_history.goBack());
}

void ViewController::goForward()
{
    selectNode(m_history.goForward());
}

bool ViewController::canGoUp() const
{
    return m_host.tree().parent(m_view->selectedNode()) != NodeId::none;
}

void ViewController::goUp()
{
    if (canGoUp())
    {
        selectNode(m_host.tree().parent(m_view->selectedNode()));
    }
}

void ViewController::runVerb(MMC_CONSOLE_VERB verb)
{
    act([&] { m_view->runVerb(verb); });
}

void ViewController::copy()
{
    act(
        [&]
        {
            if (m_view->verb(MMC_VERB_COPY).enabled)
            {
                m_view->runVerb(MMC_VERB_COPY);
            }
            else if (actsOnRows())
            {
                putOnClipboard(m_frame.window(), selectedRowsAsText(*m_view));
            }
            else if (m_view->selectedNode() != NodeId::none)
            {
                putOnClipboard(m_frame.window(), m_host.tree().text(m_view->selectedNode()));
            }
        });
}

void ViewController::setViewMode(int mode)
{
    act(
        [&]
        {
            m_view->setViewMode(mode);
            note(pane);
        });
}

void ViewController::switchPane()
{
    m_treeFocused = !m_treeFocused || m_view->pane() != View::Pane::list;
    focusPane();
}

void ViewController::focusPane()
{
    SetFocus(m_treeFocused ? m_tree->control() : m_results->list().control());
}

bool ViewController::actsOnRows() const
{
    return !m_treeFocused && m_view->pane() == View::Pane::list && !m_view->selectedRows().empty();
}

ContextMenu ViewController::menu()
{
    if (actsOnRows())
    {
        return m_view->rowMenu();
    }
    return m_treeFocused || m_view->pane() != View::Pane::list ? m_view->nodeMenu(m_view->selectedNode())
                                                               : m_view->paneMenu();
}

void ViewController::showMenu(const std::function<ContextMenu()>& open, POINT screen)
{
    act(
        [&]
        {
            ContextMenu menu = open();
            takeChanges();
            SetCursor(LoadCursorW(nullptr, IDC_ARROW));
            const unsigned command = trackMenu(m_frame.window(), menu.items(), screen);
            if (command != 0)
            {
                const WaitCursor wait;
                menu.run(command);
            }
        });
}

// --- what the user does in the tree
// --------------------------------------------------------------------------------------

void ViewController::nodeChosen(NodeId chosen)
{
    // Not at once: the tree is in the middle of the click, and a key that is held down passes many nodes.
    later(
        [this, chosen]
        {
            if (chosen == m_tree->marked() && chosen != m_view->selectedNode())
            {
                m_view->selectNode(chosen);
                tellFocus();
            }
        });
}

void ViewController::nodeOpening(NodeId opening)
{
    act([&] { m_host.tree().expand(opening); });
}

bool ViewController::nodeRenamable(NodeId renamed)
{
    const bool wanted = !m_acting && m_treeFocused && renamed == m_view->selectedNode();
    return m_renameAsked || (wanted && m_view->verb(MMC_VERB_RENAME).enabled);
}

void ViewController::nodeRenamed(NodeId renamed, const std::wstring& name)
{
    later(
        [this, renamed, name]
        {
            m_view->renameNode(renamed, name);
            m_tree->refresh(renamed);
        });
}

void ViewController::nodeMenuWanted(NodeId wanted, POINT screen)
{
    showMenu([&] { return m_view->nodeMenu(wanted); }, screen);
}

// --- what the user does in the list
// --------------------------------------------------------------------------------------

void ViewController::rowsChosen()
{
    if (!std::exchange(m_selectionPending, true))
    {
        later([this] { takeUserSelection(); });
    }
}

void ViewController::takeUserSelection()
{
    m_selectionPending = false;
    if (m_view->pane() != View::Pane::list)
    {
        return;
    }
    const ResultList& list = m_results->list();
    m_view->setFocusedRow(list.focusedRow());
    const std::vector<int> rows = list.selectedRows();
    if (rows != m_view->selectedRows())
    {
        m_view->selectRows(rows);
    }
    note(status | verbs);
}

void ViewController::rowActivated(int row)
{
    later(
        [this, row]
        {
            m_view->activateRow(row);
            tellFocus();
        });
}

bool ViewController::rowRenamable(int row)
{
    const bool wanted = !m_acting && !m_treeFocused && m_view->rowSelected(row);
    return m_renameAsked || (wanted && m_view->verb(MMC_VERB_RENAME).enabled);
}

void ViewController::rowRenamed(int row, const std::wstring& name)
{
    later(
        [this, row, name]
        {
            m_view->renameRow(row, name);
            note(looks);
        });
}

void ViewController::columnClicked(int column)
{
    later(
        [this, column]
        {
            if (m_view->sortable())
            {
                m_view->clickColumn(column);
            }
        });
}

void ViewController::columnResized(int column, int width)
{
    m_view->setColumnWidth(column, width);
    if (m_keepWidths && !std::exchange(m_widthsPending, true))
    {
        later(
            [this]
            {
                m_widthsPending = false;
                rememberWidths(*m_view);
            });
    }
}

void ViewController::rowMenuWanted(POINT screen)
{
    showMenu([&] { return m_view->rowMenu(); }, screen);
}

void ViewController::paneMenuWanted(POINT screen)
{
    showMenu([&] { return m_view->paneMenu(); }, screen);
}

void ViewController::focusMoved(bool tree)
{
    m_treeFocused = tree;
    if (m_treeFocused != m_toldTreeFocused)
    {
        later([this] { tellFocus(); });
    }
}

void ViewController::tellFocus()
{
    m_toldTreeFocused = m_treeFocused;
    m_view->focusTree(m_treeFocused);
    note(verbs);
}

// --- what the host reports
// -----------------------------------------------------------------------------------------------

void ViewController::nodeSelected(NodeId selected)
{
    m_history.visit(selected);
    note(node | verbs | status);
}

void ViewController::expandAsked(NodeId asked, bool expand)
{
    later([this, asked, expand] { m_tree->open(asked, expand); });
}

void ViewController::renameNodeAsked(NodeId asked)
{
    later(
        [this, asked]
        {
            const Restore allowed(m_renameAsked, true);
            m_tree->editName(asked);
        });
}

void ViewController::renameRowAsked(int row)
{
    later(
        [this, row]
        {
            const Restore allowed(m_renameAsked, true);
            m_results->list().editName(row);
        });
}

void ViewController::nodeInserted(NodeId inserted)
{
    m_tree->insert(inserted);
}

void ViewController::nodeRemoved(NodeId removed)
{
    m_history.forget(removed);
    m_tree->remove(removed);
}

void ViewController::nodeChanged(NodeId changed)
{
    m_tree->refresh(changed);
    // The name may stand in the title.
    note(node);
}

void ViewController::newWindowAsked(NodeId asked, DWORD, const std::wstring& title)
{
    later([this, asked, title] { m_frame.newWindowAsked(asked, title); });
}

} // namespace Console
