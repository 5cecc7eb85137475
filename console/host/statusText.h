#pragma once

#include "console/host/View.h"

#include <string>

namespace Console
{

// A snap-in's status text: up to three sections divided by '|'; "%nn" as the middle one is a progress; "%%" stands
// for a percent sign.
View::Status parseStatusText(const std::wstring& text);

} // namespace Console
