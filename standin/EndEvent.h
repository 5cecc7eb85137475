#pragma once

#include <platform/handles.h>

namespace StandIn
{

// The named event that ends the service whatever its switches: the way out of a service that hangs or refuses to stop.
namespace EndEvent
{

inline constexpr wchar_t name[] = L"Global\\KVTessaroStandInEnd";

// The service's side: the event, not set, for administrators to open. Throws Core::IOException.
platform::KernelHandle create();

// Sets the event. Returns false when no service holds it; throws Core::IOException when Windows refuses it.
bool set();

} // namespace EndEvent

} // namespace StandIn
