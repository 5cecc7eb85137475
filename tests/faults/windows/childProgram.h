#pragma once

#include <windows.h>

// This program started anew, to make one save and be killed in it.

// How such a program ends that was killed.
constexpr UINT killedStatus = 42;

// Whether the arguments are those with which attemptElsewhere starts it.
bool isChildProgram(int argumentCount, wchar_t** arguments);

[[noreturn]] void runChildProgram(wchar_t** arguments);
