#include "console/host/ScopeTree.h"

#include "ImageStore.h"
#include "Instance.h"
#include "ScopeStore.h"

namespace Console
{

namespace
{

NodeId idOf(const ScopeNode* node)
{
    return node == nullptr ? NodeId::none : node->id;
}

} // namespace

bool ScopeTree::contains(NodeId node) const
{
    return m_store.find(node) != nullptr;
}

std::vector<NodeId> ScopeTree::roots() const
{
    std::vector<NodeId> nodes;
    for (const ScopeNode* root = m_store.firstRoot(); root != nullptr; root = root->next)
    {
        nodes.push_back(root->id);
    }
    return nodes;
}

NodeId ScopeTree::parent(NodeId node) const
{
    const ScopeNode* const found = m_store.find(node);
    return found == nullptr ? NodeId::none : idOf(found->parent);
}

NodeId ScopeTree::firstChild(NodeId node) const
{
    const ScopeNode* const found = m_store.find(node);
    return found == nullptr ? NodeId::none : idOf(found->first);
}

NodeId ScopeTree::nextSibling(NodeId node) const
{
    const ScopeNode* const found = m_store.find(node);
    return found == nullptr ? NodeId::none : idOf(found->next);
}

std::vector<NodeId> ScopeTree::children(NodeId node) const
{
    std::vector<NodeId> nodes;
    for (NodeId child = firstChild(node); child != NodeId::none; child = nextSibling(child))
    {
        nodes.push_back(child);
    }
    return nodes;
}

SnapIn* ScopeTree::snapIn(NodeId node) const
{
    const ScopeNode* const found = m_store.find(node);
    return found == nullptr ? nullptr : found->owner->host().snapInOf(*found->owner);
}

std::wstring ScopeTree::text(NodeId node) const
{
    const ScopeNode* const found = m_store.find(node);
    return found == nullptr ? std::wstring() : found->owner->nodeText(node);
}

int ScopeTree::image(NodeId node) const
{
    const ScopeNode* const found = m_store.find(node);
    return found == nullptr ? -1 : found->owner->nodeImage(node, false);
}

int ScopeTree::openImage(NodeId node) const
{
    const ScopeNode* const found = m_store.find(node);
    return found == nullptr ? -1 : found->owner->nodeImage(node, true);
}

bool ScopeTree::hasExpandMark(NodeId node) const
{
    const ScopeNode* const found = m_store.find(node);
    if (found == nullptr)
    {
        return false;
    }
    return found->first != nullptr || (!found->expanded && found->declaredChildren);
}

bool ScopeTree::wasExpanded(NodeId node) const
{
    const ScopeNode* const found = m_store.find(node);
    return found != nullptr && found->expanded;
}

bool ScopeTree::expand(NodeId node) const
{
    const ScopeNode* const found = m_store.find(node);
    return found != nullptr && found->owner->expand(node);
}

HIMAGELIST ScopeTree::images() const
{
    return m_images.small();
}

} // namespace Console
