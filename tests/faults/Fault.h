#pragma once

#include <string_view>

// What happens at one call on the system while something is saved.
enum class Fault
{
    // The program is killed.
    killed,
    // The disk has no room for what this call is to write or make.
    diskFull,
    // Nor for anything from then on.
    diskStaysFull,
    accessDenied,
    // Another program has the file just then.
    inUse
};

constexpr Fault allFaults[] = {Fault::killed, Fault::diskFull, Fault::diskStaysFull, Fault::accessDenied, Fault::inUse};

constexpr std::string_view nameOf(Fault fault) noexcept
{
    constexpr std::string_view names[] = {"killed", "disk full", "disk stays full", "access denied", "in use"};
    return names[static_cast<int>(fault)];
}

// What a call does to the disk.
enum class Effect
{
    looks,
    // Opens or locks what is there, which another program can be in the way of.
    claims,
    // Changes what is there, but needs no room for it.
    changes,
    // Makes something, or gives it another place.
    makes,
    // Appends or overwrites: half of it can have been done.
    writes,
    // Puts one file in the place of another: the one can be away already while the other is not there yet.
    replaces
};
