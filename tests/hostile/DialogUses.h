#pragma once

#include <iosfwd>
#include <span>
#include <vector>

namespace Hostile
{

// Presses a button; with a text, it is put into that field and nothing is pressed. The control is there by then, and
// enabled.
struct Press
{
    int control;
    const wchar_t* text = nullptr;
};

// One way through the plug-in's dialogs, beginning with a command.
struct DialogUse
{
    static constexpr int itself = -1;

    const char* name;
    // The node that has the command, or its row of that number.
    const wchar_t* node;
    int row;
    long command;
    // Goes through the dialogs as they come; what is open behind the last one is closed.
    std::vector<Press> presses;
    // The resources of the dialogs and the wizard's pages that come, each number once and in their order.
    std::vector<int> resources;
    // How many windows that is. The pages are parts of their wizard.
    int windows;
    // How many message boxes come. They are answered with their first button, and only one use shows them for real:
    // drawing takes most of the time.
    int messages = 0;
    // How many dialogs of the system's own, for files and folders. All are answered at once: what Wine's dialogs leave
    // behind is none of the plug-in's doing.
    int pickers = 0;
    bool showsMessages = false;
};

void PrintTo(const DialogUse& use, std::ostream* out);

// Together they go through every dialog that the plug-in ever opens.
std::span<const DialogUse> dialogUses();

} // namespace Hostile
