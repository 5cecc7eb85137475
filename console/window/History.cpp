#include "History.h"

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

void History::forget(NodeId node)
{
    for (std::size_t i = m_nodes.size(); i-- > 0;)
    {
        // What becomes its own neighbour goes with it.
        const bool repeated = i > 0 && i < m_nodes.size() && m_nodes[i] == m_nodes[i - 1];
        if (m_nodes[i] == node || repeated)
        {
            m_nodes.erase(m_nodes.begin() + static_cast<std::ptrdiff_t>(i));
            if (m_place >= i && m_place > 0)
            {
                --m_place;
            }
        }
    }
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
