#pragma once

#include "console/host/Node.h"

#include <windows.h>

#include <commctrl.h>

#include <memory>
#include <string>
#include <vector>

namespace Console
{

class ImageStore;
class ScopeStore;
class SnapIn;

// The console's tree, as read by a window. Its top level holds the static node of every snap-in of the host.
// Functions that take a node that is gone answer as for a node without anything (empty text, no children, none).
class ScopeTree
{
  public:
    ScopeTree(ScopeStore& store, const ImageStore& images) : m_store(store), m_images(images) {}

    bool contains(NodeId node) const;
    std::vector<NodeId> roots() const;
    // none for a static node.
    NodeId parent(NodeId node) const;
    NodeId firstChild(NodeId node) const;
    NodeId nextSibling(NodeId node) const;
    std::vector<NodeId> children(NodeId node) const;

    // The snap-in whose node it is; null when the node is gone.
    SnapIn* snapIn(NodeId node) const;

    // What the tree shows. These ask the snap-in each time: call them when drawing, not inside a listener's
    // nodeInserted or nodeChanged (the snap-in is still in the middle of its own call then).
    std::wstring text(NodeId node) const;
    int image(NodeId node) const;     // index into images()
    int openImage(NodeId node) const; // index into images()

    // Whether to draw an expand mark: what the snap-in declared until the node was expanded once, then the truth.
    bool hasExpandMark(NodeId node) const;
    bool wasExpanded(NodeId node) const;

    // Makes the snap-in insert the node's children, the first time; loads the snap-in if need be. After that it does
    // nothing. False when the node is gone or its snap-in cannot be used.
    bool expand(NodeId node) const;

    // 16 by 16 images of all nodes; lent. The list stays the same one for the host's life and only grows.
    HIMAGELIST images() const;

  private:
    ScopeStore& m_store;
    const ImageStore& m_images;
};

} // namespace Console
