#include "History.h"

#include <utility>

namespace Console
{

namespace
{

constexpr std::size_t longest = 100;

}

void History::visit(NodeId node)
{
    if (node == NodeId::none || (!m_nodes.empty() && m_nodes[m_place] == node))
    {
        return;
    }
    if (!m_nodes.empty())
    {
        m_nodes.resize(m_place + 1);
    }
    m_nodes.push_back(node);
    if (m_nodes.size() > longest)
    {
        m_nodes.erase(m_nodes.begin());
    }
    m_place = m_nodes.size() - 1;
}

void History::forget(NodeId gone)
{
    std::vector<NodeId> kept;
    std::size_t place = 0;
    for (std::size_t i = 0; i < m_nodes.size(); ++i)
    {
        // What becomes its own neighbour is one.
        if (m_nodes[i] != gone && (kept.empty() || kept.back() != m_nodes[i]))
        {
            kept.push_back(m_nodes[i]);
        }
        if (i <= m_place)
        {
            place = kept.empty() ? 0 : kept.size() - 1;
        }
    }
    m_nodes = std::move(kept);
    m_place = place;
}

NodeId History::goBack()
{
    return canGoBack() ? m_nodes[--m_place] : NodeId::none;
}

NodeId History::goForward()
{
    return canGoForward() ? m_nodes[++m_place] : NodeId::none;
}

} // namespace Console
