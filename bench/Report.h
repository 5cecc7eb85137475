#pragma once

#include <chrono>
#include <cstddef>
#include <functional>

namespace Bench
{

// One side of a comparison. Only act is on the clock.
struct Side
{
    std::function<void()> act;
    std::function<void()> before{};
    // Checks that act did its work; throws when it did not.
    std::function<void()> after{};
};

// Runs both sides in turn, once to warm up and then again and again on the clock until that much time is over, and
// hands the times to the script that makes the table. What takes some seconds is run once or twice. size: the number of
// rows among which it happened; 0 where there are none.
void compare(const char* what, std::size_t size, std::chrono::milliseconds patience, const Side& measured,
             const Side& floor);

// Hands over a number of bytes, and the floor's.
void reportBytes(const char* what, std::size_t size, std::size_t measured, std::size_t floor);

} // namespace Bench
