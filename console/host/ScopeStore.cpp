#include "ScopeStore.h"

namespace Console
{

ScopeNode* ScopeStore::find(NodeId node)
{
    return m_nodes.find(static_cast<LONG_PTR>(node));
}

ScopeNode& ScopeStore::addRoot(Instance& owner)
{
    ScopeNode& node = insert(m_top, nullptr);
    node.owner = &owner;
    node.parent = nullptr;
    return node;
}

ScopeNode& ScopeStore::insert(ScopeNode& parent, ScopeNode* before)
{
    const auto id = static_cast<NodeId>(m_nodes.insert({}));
    ScopeNode& node = *find(id);
    node.id = id;
    node.owner = parent.owner;
    link(parent, node, before);
    return node;
}

void ScopeStore::link(ScopeNode& parent, ScopeNode& node, ScopeNode* before)
{
    node.parent = &parent;
    node.next = before;
    node.previous = before != nullptr ? before->previous : parent.last;
    (node.previous != nullptr ? node.previous->next : parent.first) = &node;
    (before != nullptr ? before->previous : parent.last) = &node;
}

void ScopeStore::remove(ScopeNode& node)
{
    ScopeNode& parent = node.parent != nullptr ? *node.parent : m_top;
    (node.previous != nullptr ? node.previous->next : parent.first) = node.next;
    (node.next != nullptr ? node.next->previous : parent.last) = node.previous;
    // Leaves first, without recursion: a tree may be deep.
    ScopeNode* at = &node;
    for (;;)
    {
        while (at->first != nullptr)
        {
            at = at->first;
        }
        const bool done = at == &node;
        ScopeNode* const above = at->parent;
        ScopeNode* const next = at->next;
        m_nodes.erase(static_cast<LONG_PTR>(at->id));
        if (done)
        {
            return;
        }
        above->first = next;
        at = next != nullptr ? next : above;
    }
}

bool ScopeStore::isBelow(const ScopeNode& node, const ScopeNode& ancestor)
{
    for (const ScopeNode* above = node.parent; above != nullptr; above = above->parent)
    {
        if (above == &ancestor)
        {
            return true;
        }
    }
    return false;
}

} // namespace Console
