#pragma once

#include <string>

namespace Console
{

struct Column
{
    std::wstring title;
    int format = 0; // LVCFMT_LEFT, LVCFMT_RIGHT or LVCFMT_CENTER
    // Pixels. A snap-in's "fit the title" is already worked out.
    int width = 0;
    bool hidden = false;
};

} // namespace Console
