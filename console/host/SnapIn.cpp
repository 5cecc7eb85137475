#include "console/host/SnapIn.h"

#include "Instance.h"

namespace Console
{

SnapIn::SnapIn(std::unique_ptr<Instance> instance) : m_instance(std::move(instance)) {}
SnapIn::~SnapIn() = default;

const CLSID& SnapIn::clsid() const
{
    return m_instance->clsid();
}

unsigned SnapIn::number() const
{
    return m_instance->number();
}

NodeId SnapIn::root() const
{
    return m_instance->root();
}

SnapIn::State SnapIn::state() const
{
    return m_instance->state();
}

const std::wstring& SnapIn::problem() const
{
    return m_instance->problem();
}

bool SnapIn::load()
{
    return m_instance->load();
}

} // namespace Console
