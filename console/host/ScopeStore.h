#pragma once

#include "HandleTable.h"
#include "console/host/Node.h"
#include "platform/mmc.h"

#include <optional>
#include <string>
#include <vector>

namespace Console
{

class Instance;

// One item of the tree, with its place among the others.
struct ScopeNode
{
    Instance* owner = nullptr;
    NodeId id = NodeId::none;
    ScopeNode* parent = nullptr;
    ScopeNode* first = nullptr;
    ScopeNode* last = nullptr;
    ScopeNode* previous = nullptr;
    ScopeNode* next = nullptr;
    MMC_COOKIE cookie = 0; // 0 for the static node
    // The snap-in's own image numbers; nothing: the console's folder; MMC_IMAGECALLBACK: ask.
    std::optional<int> image;
    std::optional<int> openImage;
    // The text, when the snap-in is not to be asked for it.
    std::optional<std::wstring> text;
    bool declaredChildren = true;
    bool expanded = false; // EXPAND was sent (it is, once in a node's life)
};

// All nodes of a host. Knows nothing of snap-ins and listeners: who changes it tells them.
class ScopeStore
{
  public:
    // Null when it is no node, whatever number it is.
    ScopeNode* find(NodeId node);

    // Adds a static node at the end of the top level.
    ScopeNode& addRoot(Instance& owner);

    // Adds a node below parent: before the sibling given, or last when that is null.
    ScopeNode& insert(ScopeNode& parent, ScopeNode* before);

    // Takes out the node and all below it.
    void remove(ScopeNode& node);

    static bool isBelow(const ScopeNode& node, const ScopeNode& ancestor);

    ScopeNode* firstRoot() { return m_top.first; }

  private:
    void link(ScopeNode& parent, ScopeNode& node, ScopeNode* before);

    HandleTable<ScopeNode> m_nodes{0x2A5C0000};
    // Stands above the static nodes; nobody sees it.
    ScopeNode m_top;
};

} // namespace Console
