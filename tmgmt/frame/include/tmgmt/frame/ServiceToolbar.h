#pragma once

#include "tmgmt/snapin/ControlbarSite.h"

namespace TMgmt
{

// The toolbar with which the server's service is started and stopped. Every node has it, one to a view.

// Attaches it where the console has just given a control bar, or drops it where the bar is about to go. Throws
// ComError.
HRESULT attachServiceToolbar(ControlbarSite& site);

// Enables the buttons that make sense in the state that the service is in now.
void showServiceState(ControlbarSite& site);

} // namespace TMgmt
