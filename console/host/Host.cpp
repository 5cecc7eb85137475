#include "console/host/Host.h"

#include "Clipboard.h"
#include "Instance.h"
#include "NodeManagerFactory.h"
#include "ViewState.h"

#include <algorithm>

namespace Console
{

Host::Host(const HostOptions& options)
    : m_state(std::make_unique<HostState>(options)), m_nodeManager(std::make_unique<NodeManagerRegistration>(*m_state))
{
}

Host::~Host()
{
    m_nodeManager.reset();
    while (!m_state->snapIns.empty())
    {
        removeSnapIn(*m_state->snapIns.back());
    }
}

void Host::setFrame(HWND frame)
{
    m_state->frame = frame;
}

HWND Host::frame() const
{
    return m_state->frame;
}

void Host::addListener(HostListener& listener)
{
    m_state->listeners.push_back(&listener);
}

void Host::removeListener(HostListener& listener)
{
    std::erase(m_state->listeners, &listener);
}

SnapIn& Host::addSnapIn(const CLSID& clsid)
{
    m_state->snapIns.push_back(std::make_unique<SnapIn>(std::make_unique<Instance>(*m_state, clsid)));
    SnapIn& added = *m_state->snapIns.back();
    m_state->nodeInserted(*m_state->scope.find(added.root()));
    return added;
}

void Host::removeSnapIn(SnapIn& snapIn)
{
    const NodeId root = snapIn.root();
    for (ViewState* view : std::vector(m_state->views))
    {
        view->dropInstance(snapIn.instance());
    }
    m_state->clipboard->clear(&snapIn.instance());
    snapIn.instance().unload();
    m_state->tellListeners([&](HostListener& listener) { listener.nodeRemoved(root); });
    std::erase_if(m_state->snapIns, [&](const auto& each) { return each.get() == &snapIn; });
}

std::vector<SnapIn*> Host::snapIns() const
{
    std::vector<SnapIn*> all;
    for (const auto& snapIn : m_state->snapIns)
    {
        all.push_back(snapIn.get());
    }
    return all;
}

const ScopeTree& Host::tree() const
{
    return m_state->tree;
}

std::unique_ptr<View> Host::openView(ViewListener& listener)
{
    return std::make_unique<View>(std::make_unique<ViewState>(*m_state, listener));
}

const std::vector<Complaint>& Host::complaints() const
{
    return m_state->complaints();
}

void Host::freeUnusedLibraries()
{
    // Without a delay: the older function keeps libraries of single-threaded apartments for minutes.
    CoFreeUnusedLibrariesEx(0, 0);
}

} // namespace Console
