#pragma once

#include <span>
#include <string_view>

// What a parser of outside data, or a store, must hold for any bytes. A check ends the process where that does not
// hold.
struct FuzzTarget
{
    // Also of its folder.
    std::string_view name;
    void (*check)(std::string_view content);
};

std::span<const FuzzTarget> fuzzTargets();
