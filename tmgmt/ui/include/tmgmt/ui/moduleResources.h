#pragma once

#include <string>

#include "platform/VisualStyles.h"

namespace TMgmt
{

// The module that this code is linked into: the one whose resources hold the dialogs, menus and pictures.
HINSTANCE moduleInstance() noexcept;

// The look that the module's own manifest asks for.
const platform::VisualStyles& moduleStyles() noexcept;

// The string-table entry of that number, empty where there is none.
std::wstring loadText(UINT id);

} // namespace TMgmt
