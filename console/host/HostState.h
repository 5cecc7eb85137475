#pragma once

#include "ImageStore.h"
#include "ScopeStore.h"
#include "console/host/Host.h"

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <unordered_set>
#include <vector>

namespace Console
{

class Clipboard;
class ColumnStore;
class FaceBase;
class PropertySheets;
class ViewState;

// What every part of one host shares.
class HostState
{
  public:
    explicit HostState(const HostOptions& options);
    HostState(const HostState&) = delete;
    HostState& operator=(const HostState&) = delete;
    ~HostState();

    bool strict() const { return m_options.strictness == Strictness::strict; }
    Trace* trace() const { return m_options.trace; }
    bool onHostThread() const { return GetCurrentThreadId() == m_thread; }

    void complain(unsigned instance, const std::wstring& text);
    const std::vector<Complaint>& complaints() const { return m_complaints; }

    // How deep in operations and traced calls the thread is. Frames that a fault skipped did not count down, so
    // whoever goes on after a fault puts the depths back.
    struct Depths
    {
        unsigned operations = 0;
        unsigned calls = 0;
        unsigned expansions = 0;
    };
    Depths depths{};

    // While an operation runs, deferred actions wait; the end of the outermost one runs them, in order.
    class Operation
    {
      public:
        explicit Operation(HostState& host) : m_host(host) { ++host.depths.operations; }
        Operation(const Operation&) = delete;
        Operation& operator=(const Operation&) = delete;
        ~Operation() { m_host.endOperation(); }

      private:
        HostState& m_host;
    };
    void defer(std::function<void()> action) { m_deferred.push_back(std::move(action)); }

    template <class Tell>
    void tellListeners(Tell&& tell)
    {
        for (HostListener* listener : std::vector(listeners))
        {
            tell(*listener);
        }
    }

    // Takes the nodes below that one (and itself, when self) out of the tree. Views that show one of them leave it
    // first, and show what is left of the branch when the present operation is over.
    void removeNodes(NodeId node, bool self);
    // Tells listeners and views of a new node.
    void nodeInserted(const ScopeNode& node);

    SnapIn* snapInOf(const Instance& instance) const;

    // Everything that snap-ins can hold of the console, for the final count.
    std::unordered_set<FaceBase*> faces;

    HWND frame = nullptr;
    std::vector<HostListener*> listeners;
    ImageStore scopeImages;
    ScopeStore scope;
    ScopeTree tree;
    std::vector<std::unique_ptr<SnapIn>> snapIns;
    std::vector<ViewState*> views;
    unsigned lastInstance = 0;
    unsigned lastView = 0;
    std::unique_ptr<ColumnStore> columns;
    std::unique_ptr<Clipboard> clipboard;
    std::unique_ptr<PropertySheets> sheets;

  private:
    void endOperation() noexcept;

    bool m_draining = false;

    HostOptions m_options;
    DWORD m_thread;
    std::vector<Complaint> m_complaints;
    std::deque<std::function<void()>> m_deferred;
};

} // namespace Console
