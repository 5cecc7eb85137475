#pragma once

// The commands that start and stop the server's service, as every menu and the toolbar have them.
namespace Acceptance
{

inline constexpr int startCommand = 1002;
inline constexpr int stopCommand = 1003;

} // namespace Acceptance
