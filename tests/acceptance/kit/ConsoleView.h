#pragma once

#include "console/host/Host.h"
#include "kit/Frame.h"

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace Acceptance
{

// One view of the console, used as a person uses it: nodes by their path of texts, rows by the text of their first
// column. Throws std::runtime_error naming a node, row or command that is not there.
class ConsoleView : private Console::ViewListener
{
  public:
    ConsoleView(Console::Host& host, const Frame& frame);
    ConsoleView(const ConsoleView&) = delete;
    ConsoleView& operator=(const ConsoleView&) = delete;
    ~ConsoleView() override;

    // Below the plug-in's own node, as L"Engine Settings\\Listener Configuration"; empty: the plug-in's node. Expands
    // what is on the way.
    Console::NodeId node(const std::wstring& path) const;
    void select(const std::wstring& path);
    // The path of the node that is shown.
    std::wstring selected() const;
    // Texts of the children, in the tree's order; expands the node.
    std::vector<std::wstring> children(const std::wstring& path) const;

    struct Column
    {
        std::wstring title;
        int width = 0;
        bool operator==(const Column&) const = default;
    };
    // Of the visible columns; every one is left-aligned or the test fails.
    std::vector<Column> columns() const;
    std::vector<std::vector<std::wstring>> rows() const;
    std::vector<std::wstring> row(const std::wstring& name) const;
    std::wstring cell(const std::wstring& row, const std::wstring& column) const;
    int indexOf(const std::wstring& row) const;

    void doubleClick(const std::wstring& row);
    // Selects the row and presses Delete; nothing happens where the verb is off.
    void pressDelete(const std::wstring& row);
    bool canDelete(const std::wstring& row);

    // The texts of the enabled commands of a row's (node's) context menu, submenus after their own text.
    std::vector<std::wstring> menu(const std::wstring& row);
    std::vector<std::wstring> nodeMenu(const std::wstring& path);
    void runCommand(const std::wstring& row, const std::wstring& command);
    void runNodeCommand(const std::wstring& path, const std::wstring& command);

    // The toolbar button with this command number.
    Console::ToolbarButton toolbarButton(int command) const;
    void pressToolbarButton(int command);

    // The rows that were to be drawn again since the last call; all of them when the whole list was.
    std::set<int> takeRedrawnRows();

    Console::View& view() { return *m_view; }

  private:
    void rowsChanged() override { m_allRedrawn = true; }
    void rowChanged(int row) override { m_redrawn.insert(row); }

    std::optional<Console::NodeId> child(Console::NodeId parent, const std::wstring& text) const;

    Console::Host& m_host;
    const Frame& m_frame;
    bool m_allRedrawn = false;
    std::set<int> m_redrawn;
    std::unique_ptr<Console::View> m_view;
};

} // namespace Acceptance
