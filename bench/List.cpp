#include "List.h"

#include <algorithm>
#include <stdexcept>

namespace Bench
{

List::List(Stage& stage, const Console::SnapIn& snapIn, const std::vector<std::wstring>& names)
    : m_stage(stage), m_node(snapIn.root())
{
    for (const std::wstring& name : names)
    {
        stage.tree().expand(m_node);
        const auto children = stage.tree().children(m_node);
        const auto child =
            std::ranges::find_if(children, [&](Console::NodeId node) { return stage.tree().text(node) == name; });
        if (child == children.end())
        {
            throw std::runtime_error("a node is missing from the tree");
        }
        m_node = *child;
    }
}

void List::show()
{
    m_stage.view().selectNode(m_node);
}

void List::runVerb(MMC_CONSOLE_VERB verb)
{
    if (!m_stage.view().verb(verb).enabled)
    {
        throw std::runtime_error("the list does not offer the verb " + std::to_string(verb));
    }
    m_stage.view().runVerb(verb);
}

void List::refresh()
{
    m_stage.view().focusTree(true);
    runVerb(MMC_VERB_REFRESH);
}

std::size_t List::readTexts()
{
    const Console::View& view = m_stage.view();
    const int columns = static_cast<int>(view.columns().size());
    std::size_t length = 0;
    for (int row = 0; row < view.rowCount(); ++row)
    {
        for (int column = 0; column < columns; ++column)
        {
            length += view.rowText(row, column).size();
        }
    }
    return length;
}

void List::select(int row)
{
    m_stage.view().selectRows({row});
}

void List::deleteSelected()
{
    runVerb(MMC_VERB_DELETE);
}

void List::open(int row)
{
    m_stage.view().activateRow(row);
}

void List::runCommand(const std::wstring& text)
{
    Console::ContextMenu menu = m_stage.view().nodeMenu(m_node);
    const auto item = std::ranges::find(menu.items(), text, &Console::MenuItem::text);
    if (item == menu.items().end())
    {
        throw std::runtime_error("the node does not offer a command");
    }
    menu.run(item->command);
}

void List::expectRows(std::size_t count) const
{
    const auto found = static_cast<std::size_t>(m_stage.view().rowCount());
    if (found != count)
    {
        throw std::runtime_error("the list has " + std::to_string(found) + " rows in place of " +
                                 std::to_string(count));
    }
}

} // namespace Bench
