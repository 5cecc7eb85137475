#pragma once

#include "console/host/Node.h"

namespace Console
{

// How a window (or a test, or a lister) learns what changed in its view. The functions are called in the middle of
// the snap-in's calls: note what is to be drawn again and return; do not call back into the view except to read
// counts, columns, selection and texts that need no snap-in. They must not throw.
class ViewListener
{
  public:
    virtual ~ViewListener() = default;

    // The view now shows this node (the snap-in or the console itself may have asked for it; none: nothing is
    // shown). The window moves its tree's mark there without calling selectNode again.
    virtual void nodeSelected(NodeId /*node*/) {}
    // Kind, message, mode or style of the result pane changed.
    virtual void paneChanged() {}
    virtual void columnsChanged() {}
    // Rows came, went or moved: take the new count, the new selection, and draw all visible rows again.
    // Sent once for every row that a snap-in inserts, so only note it.
    virtual void rowsChanged() {}
    // One row's text or image is to be asked for again.
    virtual void rowChanged(int /*row*/) {}
    // The selection among the rows was changed by the snap-in.
    virtual void selectionChanged() {}
    virtual void verbsChanged() {}
    virtual void toolbarsChanged() {}
    virtual void statusTextChanged() {}
    virtual void descriptionChanged() {}
    // The snap-in wants a node opened or closed in this view's tree; its children are already there.
    virtual void expandAsked(NodeId /*node*/, bool /*expand*/) {}
    // Let the user edit the name in place; then call View::renameNode or View::renameRow.
    virtual void renameNodeAsked(NodeId /*node*/) {}
    virtual void renameRowAsked(int /*row*/) {}
};

} // namespace Console
