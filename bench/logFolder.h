#pragma once

#include <string>
#include <vector>

namespace Bench
{

// The folder that Fixtures::make("logs", size) fills, with a separator at its end.
std::wstring logFolder(std::size_t size);
// The logs in a folder, in the order in which the system gives them.
std::vector<std::wstring> logsIn(const std::wstring& folder);

} // namespace Bench
