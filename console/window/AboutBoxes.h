#pragma once

#include <windows.h>

#include <string>

namespace Console
{

// The about box of this program.
void showAboutConsole(HWND owner);

// The about box of a snap-in, filled from its about object. name: of its static node. A snap-in that has no such
// object, or whose object cannot be created, gets a box that says so.
void showAboutSnapIn(HWND owner, const CLSID& snapIn, const std::wstring& name);

} // namespace Console
