#pragma once

namespace TMgmt
{

// The machine-wide switch behind every check box "Restart the service to apply changes.": the value
// "Restart Services" under HKEY_LOCAL_MACHINE\SOFTWARE\Brimlow\KV Tessaro.

// True unless the registry says "false": on a fresh machine a changed setting takes effect at once.
bool readRestartPreference();

// A registry that refuses is passed over.
void writeRestartPreference(bool restart);

} // namespace TMgmt
