#pragma once

#include "platform/handles.h"

#include <string>

// Starts a program, which inherits the handles that startup names. Throws std::runtime_error.
platform::KernelHandle startProcess(std::wstring commandLine, STARTUPINFOW startup);
