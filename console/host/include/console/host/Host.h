#pragma once

#include "console/host/Node.h"
#include "console/host/ScopeTree.h"
#include "console/host/SnapIn.h"
#include "console/host/Trace.h"
#include "console/host/View.h"

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

namespace Console
{

class HostState;
class NodeManagerRegistration;

// How breaches of the rules are answered. Both complain.
enum class Strictness
{
    // As the real console does: what can be made sense of is done.
    tolerant,
    // As the documents say: interfaces asked for on the wrong object, columns out of order, tree texts given
    // in place of callbacks and the like are refused.
    strict,
};

struct HostOptions
{
    Strictness strictness = Strictness::tolerant;
    // Outlives the host; may be null.
    Trace* trace = nullptr;
};

// Learns what happens to the tree and the snap-ins, whatever view is open. Same rules as for ViewListener.
class HostListener
{
  public:
    virtual ~HostListener() = default;

    // The node is in the tree, its following sibling (if any) too. Do not ask for its text yet.
    virtual void nodeInserted(NodeId /*node*/) {}
    // The node and all below it are about to go: still readable, but ask for no text.
    virtual void nodeRemoved(NodeId /*node*/) {}
    // Text, image or expand mark are to be asked for again.
    virtual void nodeChanged(NodeId /*node*/) {}
    // A snap-in became ready, failed or died; SnapIn::problem says why.
    virtual void snapInChanged(SnapIn& /*snapIn*/) {}
    // A snap-in asks for another window on this node (MMC_NW_OPTION_… flags; title empty: make one up). Open it after
    // the present call returned.
    virtual void newWindowAsked(NodeId /*node*/, DWORD /*options*/, const std::wstring& /*title*/) {}
};

// The console: snap-ins, their tree, and the views on it. Everything happens on the thread that made it, which must
// have called OleInitialize (or CoInitialize: single-threaded apartment) and must run a message loop while property
// sheets are open. Only one host may exist at a time. No function throws on what a snap-in does; only std::bad_alloc
// and misuse (std::logic_error) come out.
//
// Tear-down is in one fixed order: views (closed by their owners), then snap-ins, then the host. A View must be
// destroyed before its Host.
class Host
{
  public:
    explicit Host(const HostOptions& options = {});
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;
    // Takes out every snap-in and complains about each console object that somebody still holds. Windows of
    // open property sheets are closed first.
    ~Host();

    // The window that owns message boxes and that snap-ins get from IConsole::GetMainWindow; null at first.
    void setFrame(HWND frame);
    HWND frame() const;

    // Listeners are lent and told in the order of adding.
    void addListener(HostListener& listener);
    void removeListener(HostListener& listener);

    // Puts a snap-in at the end of the tree's top level. Only its name and icons are read; its library is loaded when
    // its node is first expanded or selected. Works for any class id: one that cannot be created fails on load.
    SnapIn& addSnapIn(const CLSID& clsid);
    // Views that show it deselect first. The reference is invalid afterwards.
    void removeSnapIn(SnapIn& snapIn);
    std::vector<SnapIn*> snapIns() const;

    const ScopeTree& tree() const;

    // A view with nothing selected. The listener is lent and outlives the view.
    std::unique_ptr<View> openView(ViewListener& listener);

    // Everything complained about so far.
    const std::vector<Complaint>& complaints() const;

    // Lets COM unload the libraries that nobody uses any more, now.
    static void freeUnusedLibraries();

    HostState& state() const { return *m_state; }

  private:
    std::unique_ptr<HostState> m_state;
    std::unique_ptr<NodeManagerRegistration> m_nodeManager;
};

} // namespace Console
