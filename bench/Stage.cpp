#include "Stage.h"

#include "floor/FloorObject.h"
#include "kit/ConsoleTest.h"
#include "kit/windows.h"

#include <stdexcept>

namespace Bench
{
namespace
{

Console::SnapIn& load(Console::Host& host, const CLSID& clsid)
{
    Console::SnapIn& snapIn = host.addSnapIn(clsid);
    if (!snapIn.load())
    {
        throw std::runtime_error(Acceptance::narrow(snapIn.problem()));
    }
    return snapIn;
}

} // namespace

Stage::Stage(const FloorNode& floor)
    : m_registration(floor),
      m_plugIn(load(m_host, Acceptance::snapInClass)),
      m_floor(load(m_host, floorClass)),
      m_view(m_host.openView(m_listener))
{
    m_host.setFrame(m_frame.handle());
}

Stage::~Stage() = default;

void Stage::leave()
{
    m_view->selectNode(Console::NodeId::none);
}

} // namespace Bench
