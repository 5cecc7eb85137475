#pragma once

#include "tmgmt/snapin/ControlbarSite.h"

namespace TMgmt
{

// The toolbar with which the server's service is started and stopped. Every node has it, one to a view.

// Attaches it when the console has given a control bar; without one there is nothing to do. Throws ComError.
HRESULT attachServiceToolbar(ControlbarSite& site);

// Enables the buttons that make sense in the state that the service is in now.
void showServiceState(ControlbarSite& site);

} // namespace TMgmt
