#include "Stage.h"

#include "floor/FloorObject.h"
#include "kit/windows.h"

#include <stdexcept>

namespace Bench
{

const CLSID plugInClass{0xB86BF80B, 0x252D, 0x44CD, {0x8D, 0x11, 0xD8, 0xEA, 0x4C, 0x17, 0x02, 0xED}};

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
      m_plugIn(load(m_host, plugInClass)),
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
