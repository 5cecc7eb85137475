#pragma once

#include <windows.h>

#include <filesystem>

namespace Console
{

// Saves a part of the screen as a PNG file; what lies outside the screen is left out. COM must be initialised on this
// thread. Throws std::system_error when the picture cannot be taken or written.
void saveScreenshot(const RECT& area, const std::filesystem::path& file);

} // namespace Console
