#include "Report.h"

#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

namespace Bench
{
namespace
{

using Clock = std::chrono::steady_clock;
using Nanoseconds = std::chrono::nanoseconds;

constexpr std::size_t fewest = 2;
// What takes this long is run once.
constexpr std::chrono::seconds longTime{4};

Nanoseconds timeOf(const Side& side)
{
    if (side.before)
    {
        side.before();
    }
    const auto begin = Clock::now();
    side.act();
    const auto end = Clock::now();
    if (side.after)
    {
        side.after();
    }
    return end - begin;
}

std::string listOf(const std::vector<Nanoseconds>& times)
{
    std::string list;
    for (const Nanoseconds time : times)
    {
        list.append(list.empty() ? "" : ",").append(std::to_string(time.count()));
    }
    return list;
}

} // namespace

void compare(const char* what, std::size_t size, std::chrono::milliseconds patience, const Side& measured,
             const Side& floor)
{
    const auto begin = Clock::now();
    std::vector<Nanoseconds> measuredTimes{timeOf(measured)};
    std::vector<Nanoseconds> floorTimes{timeOf(floor)};
    if (Clock::now() - begin < longTime)
    {
        // That was to warm up.
        measuredTimes.clear();
        floorTimes.clear();
        while (measuredTimes.size() < fewest || Clock::now() - begin < patience)
        {
            measuredTimes.push_back(timeOf(measured));
            floorTimes.push_back(timeOf(floor));
        }
    }
    std::printf("figure\t%s\t%zu\tns\t%s\t%s\n", what, size, listOf(measuredTimes).c_str(), listOf(floorTimes).c_str());
    std::fflush(stdout);
}

void reportBytes(const char* what, std::size_t size, std::size_t measured, std::size_t floor)
{
    std::printf("figure\t%s\t%zu\tbytes\t%zu\t%zu\n", what, size, measured, floor);
    std::fflush(stdout);
}

} // namespace Bench
