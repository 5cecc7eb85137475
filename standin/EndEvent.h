#pragma once

#include <platform/handles.h>

namespace StandIn
{

// The named event that ends the service whatever its switches: the way out of a service that hangs or refuses to stop.
// It ends the program in console mode as well.
namespace EndEvent
{

inline constexpr wchar_t name[] = L"Global\\KVTessaroStandInEnd";

// The service's side: the event, not set, for administrators to open. Throws Core::IOException.
platform::KernelHandle create();

// Sets the event. Returns false when nothing that it could end is there; throws Core::IOException when Windows refuses
// it.
bool set();

} // namespace EndEvent

} // namespace StandIn
