#include "HostState.h"

#include "Clipboard.h"
#include "ColumnStore.h"
#include "Face.h"
#include "Instance.h"
#include "PropertySheets.h"
#include "ViewState.h"

namespace Console
{

HostState::HostState(const HostOptions& options)
    : tree(scope, scopeImages),
      columns(std::make_unique<ColumnStore>()),
      clipboard(std::make_unique<Clipboard>()),
      sheets(std::make_unique<PropertySheets>(*this)),
      m_options(options),
      m_thread(GetCurrentThreadId())
{
}

HostState::~HostState()
{
    for (FaceBase* face : faces)
    {
        face->orphan();
    }
}

void HostState::complain(unsigned instance, const std::wstring& text)
{
    m_complaints.push_back({instance, text});
    if (m_options.trace != nullptr)
    {
        m_options.trace->complained(m_complaints.back());
    }
}

void HostState::endOperation() noexcept
{
    if (--depths.operations > 0 || m_draining)
    {
        return;
    }
    m_draining = true;
    while (!m_deferred.empty())
    {
        const std::function<void()> action = std::move(m_deferred.front());
        m_deferred.pop_front();
        try
        {
            action();
        }
        catch (...)
        {
            OutputDebugStringW(L"The console ran out of memory while it was catching up.\n");
        }
    }
    m_draining = false;
}

SnapIn* HostState::snapInOf(const Instance& instance) const
{
    for (const std::unique_ptr<SnapIn>& snapIn : snapIns)
    {
        if (&snapIn->instance() == &instance)
        {
            return snapIn.get();
        }
    }
    return nullptr;
}

void HostState::nodeInserted(const ScopeNode& node)
{
    tellListeners([&](HostListener& listener) { listener.nodeInserted(node.id); });
    for (ViewState* view : views)
    {
        view->nodeInserted(node);
    }
}

void HostState::removeNodes(NodeId id, bool self)
{
    ScopeNode* const node = scope.find(id);
    if (node == nullptr)
    {
        return;
    }
    const Operation operation(*this);
    const NodeId survivor = self && node->parent != nullptr ? node->parent->id : self ? NodeId::none : id;
    for (ViewState* view : std::vector(views))
    {
        const ScopeNode* const shown = scope.find(view->node());
        if (shown != nullptr && ((self && shown == node) || ScopeStore::isBelow(*shown, *node)))
        {
            view->leave();
            defer(
                [this, number = view->number(), survivor]
                {
                    for (ViewState* each : std::vector(views))
                    {
                        // Somebody may have asked for another node meanwhile.
                        if (each->number() == number && each->node() == NodeId::none)
                        {
                            each->select(survivor);
                        }
                    }
                });
        }
    }
    const auto take = [this](ScopeNode& gone)
    {
        tellListeners([&](HostListener& listener) { listener.nodeRemoved(gone.id); });
        for (ViewState* view : views)
        {
            view->nodeRemoving(gone);
        }
        scope.remove(gone);
    };
    if (self)
    {
        take(*node);
        return;
    }
    while (node->first != nullptr)
    {
        take(*node->first);
    }
    tellListeners([&](HostListener& listener) { listener.nodeChanged(id); });
}

} // namespace Console
