#pragma once

#include "brimlow/system/String.h"

// What the rules for hot folders ask about paths. Both separators count on every system, as they do on Windows.
namespace HotFolders
{

bool containsSeparator(const Core::String& text) noexcept;

// The name of a file or folder without the folders it is in; the whole path where there is nothing else ("C:\").
Core::String lastComponent(const Core::String& path);

// Whether the path means the same whatever the current folder and drive are: "C:\…" or "\\server\share…", and "/…"
// where that is how paths begin.
bool isFullPath(const Core::String& path) noexcept;

// A text that two paths have in common exactly when they are taken for the same: neither case (as
// String::toUpper knows it) nor the kind of the separators counts, nor separators at the end.
Core::String comparisonKey(const Core::String& path);

} // namespace HotFolders
