#pragma once

#include "Fault.h"
#include "Save.h"

#include <string>

// A save that meets a fault, and how it ends.
struct Attempt
{
    enum class Ending
    {
        done,
        // With an exception that is meant for the administrator.
        refused,
        killed,
        // With anything else.
        broken
    };

    Ending ending;
    // Why it was refused, or what broke.
    std::string reason;
    // Whether the save has that point.
    bool isReached;
};

// Makes the change of the save, to which the fault happens at that point (see CutPoint): in a process of its own when
// it is to be killed, else in this one.
Attempt attempt(const Save& save, Fault fault, int point);

// The change of a save with the fault, in this process.
Attempt attemptHere(const Save& save, Fault fault, int point);

// The same in a process that is started for it.
Attempt attemptElsewhere(const Save& save, Fault fault, int point);
