#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace Acceptance
{

// The controls of a dialog in their order, each as "id class text".
std::vector<std::wstring> contentsOf(HWND dialog);

// The ids of the controls that the tabulator key goes through, from the first on.
std::vector<int> tabOrderOf(HWND dialog);

// The size of a drop-down list while its list is open, from the top of its field on, in pixels.
SIZE openSizeOf(HWND list);

} // namespace Acceptance
