#pragma once

#include "Options.h"

namespace StandIn
{

// Creates the service "KV Tessaro", started on demand, with this program and the switches as its command line.
// Throws Core::IOException, also when the service is there already.
void installService(const TestSwitches& switches);

// Gives the installed service other switches, in force from its next start. Throws Core::IOException.
void reconfigureService(const TestSwitches& switches);

// Ends the service, deletes it and returns when it is gone. Returns false when it was not installed. Throws
// Core::IOException; also when somebody else keeps the service open for half a minute, and so in existence.
bool uninstallService();

} // namespace StandIn
