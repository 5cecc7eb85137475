#pragma once

#include "NodePath.h"

#include <windows.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace Console
{

// The snap-in opened when none is named.
inline constexpr CLSID defaultSnapIn = {0xB86BF80B, 0x252D, 0x44CD, {0x8D, 0x11, 0xD8, 0xEA, 0x4C, 0x17, 0x02, 0xED}};

// The command line is wrong; message is one sentence for the user.
struct UsageError
{
    std::wstring message;
};

// One thing done in the dialog that a command opened, before its picture is taken.
struct DialogStep
{
    int control = 0;
    // Nothing: the control is pressed. Else the text that it is given.
    std::optional<std::wstring> text;

    bool operator==(const DialogStep&) const = default;
};

struct CommandLine
{
    enum class Mode
    {
        window,
        help,
        list,
        json,
        screenshot,
    };

    Mode mode = Mode::window;
    CLSID snapIn = defaultSnapIn;
    // Below the static node; empty: the static node itself.
    NodePath select;
    std::optional<std::wstring> row;
    // What to run on the row (or on the node): a menu command's number, or its text without mnemonic and dots.
    std::optional<std::wstring> command;
    std::vector<DialogStep> steps;
    std::filesystem::path screenshot;
    std::filesystem::path trace;
    std::optional<SIZE> size;

    // Nobody sits in front of the window.
    bool unattended() const { return mode != Mode::window; }
};

// arguments: without the program's name. Throws UsageError.
CommandLine parseCommandLine(const std::vector<std::wstring>& arguments);

// What --help prints.
extern const wchar_t* const usage;

} // namespace Console
