#include "kit/ConsoleView.h"

#include "kit/windows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace Acceptance
{
namespace
{

using Console::MenuItem;
using Console::NodeId;

[[noreturn]] void missing(const wchar_t* what, const std::wstring& name)
{
    throw std::runtime_error(narrow(std::wstring(L"no ") + what + L" \"" + name + L"\""));
}

void collect(const std::vector<MenuItem>& items, std::vector<std::wstring>& texts)
{
    for (const MenuItem& item : items)
    {
        if (item.kind == MenuItem::Kind::separator)
        {
            texts.emplace_back(L"-");
        }
        else if (item.enabled)
        {
            texts.push_back(item.text);
        }
        collect(item.children, texts);
    }
}

std::vector<std::wstring> textsOf(const Console::ContextMenu& menu)
{
    std::vector<std::wstring> texts;
    collect(menu.items(), texts);
    return texts;
}

const MenuItem* find(const std::vector<MenuItem>& items, const std::wstring& text)
{
    for (const MenuItem& item : items)
    {
        if (item.kind == MenuItem::Kind::command && item.text == text && item.enabled)
        {
            return &item;
        }
        if (const MenuItem* const found = find(item.children, text))
        {
            return found;
        }
    }
    return nullptr;
}

void run(Console::ContextMenu menu, const std::wstring& command)
{
    const MenuItem* const item = find(menu.items(), command);
    if (!item)
    {
        missing(L"command", command);
    }
    menu.run(item->command);
}

} // namespace

ConsoleView::ConsoleView(Console::Host& host, const Frame& frame)
    : m_host(host), m_frame(frame), m_view(host.openView(*this))
{
}

ConsoleView::~ConsoleView() = default;

std::optional<NodeId> ConsoleView::child(NodeId parent, const std::wstring& text) const
{
    m_host.tree().expand(parent);
    for (const NodeId child : m_host.tree().children(parent))
    {
        if (m_host.tree().text(child) == text)
        {
            return child;
        }
    }
    return std::nullopt;
}

NodeId ConsoleView::node(const std::wstring& path) const
{
    NodeId node = m_host.tree().roots().front();
    for (std::size_t begin = 0; begin < path.size();)
    {
        const std::size_t end = std::min(path.find(L'\\', begin), path.size());
        const auto next = child(node, path.substr(begin, end - begin));
        if (!next)
        {
            missing(L"node", path);
        }
        node = *next;
        begin = end + 1;
    }
    return node;
}

void ConsoleView::select(const std::wstring& path)
{
    m_frame.activate();
    m_view->selectNode(node(path));
}

std::wstring ConsoleView::selected() const
{
    std::wstring path;
    for (NodeId node = m_view->selectedNode(); m_host.tree().parent(node) != NodeId::none;
         node = m_host.tree().parent(node))
    {
        path = m_host.tree().text(node) + (path.empty() ? L"" : L"\\" + path);
    }
    return path;
}

std::vector<std::wstring> ConsoleView::children(const std::wstring& path) const
{
    const NodeId parent = node(path);
    m_host.tree().expand(parent);
    std::vector<std::wstring> texts;
    for (const NodeId child : m_host.tree().children(parent))
    {
        texts.push_back(m_host.tree().text(child));
    }
    return texts;
}

std::vector<ConsoleView::Column> ConsoleView::columns() const
{
    std::vector<Column> columns;
    for (const Console::Column& column : m_view->columns())
    {
        EXPECT_EQ(LVCFMT_LEFT, column.format) << narrow(column.title);
        if (!column.hidden)
        {
            columns.push_back({column.title, column.width});
        }
    }
    return columns;
}

std::vector<std::vector<std::wstring>> ConsoleView::rows() const
{
    std::vector<std::vector<std::wstring>> rows(static_cast<std::size_t>(m_view->rowCount()));
    for (std::size_t row = 0; row < rows.size(); ++row)
    {
        for (std::size_t column = 0; column < m_view->columns().size(); ++column)
        {
            rows[row].push_back(m_view->rowText(static_cast<int>(row), static_cast<int>(column)));
        }
    }
    return rows;
}

int ConsoleView::indexOf(const std::wstring& row) const
{
    for (int index = 0; index < m_view->rowCount(); ++index)
    {
        if (m_view->rowText(index, 0) == row)
        {
            return index;
        }
    }
    missing(L"row", row);
}

std::vector<std::wstring> ConsoleView::row(const std::wstring& name) const
{
    return rows()[static_cast<std::size_t>(indexOf(name))];
}

std::wstring ConsoleView::cell(const std::wstring& row, const std::wstring& column) const
{
    const auto& columns = m_view->columns();
    for (std::size_t index = 0; index < columns.size(); ++index)
    {
        if (columns[index].title == column)
        {
            return m_view->rowText(indexOf(row), static_cast<int>(index));
        }
    }
    missing(L"column", column);
}

void ConsoleView::doubleClick(const std::wstring& row)
{
    const int index = indexOf(row);
    m_frame.activate();
    m_view->selectRows({index});
    m_view->activateRow(index);
}

void ConsoleView::pressDelete(const std::wstring& row)
{
    m_frame.activate();
    m_view->selectRows({indexOf(row)});
    m_view->runVerb(MMC_VERB_DELETE);
}

bool ConsoleView::canDelete(const std::wstring& row)
{
    m_view->selectRows({indexOf(row)});
    return m_view->verb(MMC_VERB_DELETE).enabled;
}

std::vector<std::wstring> ConsoleView::menu(const std::wstring& row)
{
    m_frame.activate();
    m_view->selectRows({indexOf(row)});
    return textsOf(m_view->rowMenu());
}

std::vector<std::wstring> ConsoleView::nodeMenu(const std::wstring& path)
{
    m_frame.activate();
    return textsOf(m_view->nodeMenu(node(path)));
}

void ConsoleView::runCommand(const std::wstring& row, const std::wstring& command)
{
    m_frame.activate();
    m_view->selectRows({indexOf(row)});
    run(m_view->rowMenu(), command);
}

void ConsoleView::runNodeCommand(const std::wstring& path, const std::wstring& command)
{
    m_frame.activate();
    run(m_view->nodeMenu(node(path)), command);
}

Console::ToolbarButton ConsoleView::toolbarButton(int command) const
{
    for (const Console::Toolbar& bar : m_view->toolbars())
    {
        for (const Console::ToolbarButton& button : bar.buttons)
        {
            if (button.command == command)
            {
                return button;
            }
        }
    }
    missing(L"toolbar button", std::to_wstring(command));
}

void ConsoleView::pressToolbarButton(int command)
{
    m_frame.activate();
    for (const Console::Toolbar& bar : m_view->toolbars())
    {
        for (const Console::ToolbarButton& button : bar.buttons)
        {
            if (button.command == command)
            {
                m_view->pressToolbarButton(bar.id, command);
                return;
            }
        }
    }
    missing(L"toolbar button", std::to_wstring(command));
}

std::set<int> ConsoleView::takeRedrawnRows()
{
    if (m_allRedrawn)
    {
        for (int row = 0; row < m_view->rowCount(); ++row)
        {
            m_redrawn.insert(row);
        }
    }
    m_allRedrawn = false;
    return std::exchange(m_redrawn, {});
}

} // namespace Acceptance
