#pragma once

#include <windows.h>

#include <vector>

namespace TMgmt
{

struct ToolbarResource
{
    // Of one button, in pixels.
    int width;
    int height;
    std::vector<WORD> commands;
};

// Reads a toolbar resource of this module. Throws ComError(E_FAIL) when there is none or it is damaged.
ToolbarResource loadToolbarResource(UINT id);

} // namespace TMgmt
