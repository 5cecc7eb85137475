#pragma once

#include "console/host/Node.h"

#include <cstddef>
#include <vector>

namespace Console
{

// The nodes that were shown, for going back and forward.
class History
{
  public:
    // A node is shown. Forgets what lies ahead, unless it is the node that step() led to.
    void visit(NodeId node);
    // A node is gone.
    void forget(NodeId node);

    bool canGoBack() const { return m_place > 0; }
    bool canGoForward() const { return m_place + 1 < m_nodes.size(); }
    // Moves one place back or forward and gives the node there; none at the end.
    NodeId goBack();
    NodeId goForward();

  private:
    std::vector<NodeId> m_nodes;
    std::size_t m_place = 0; // of the node shown
};

} // namespace Console
