#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>

namespace TMgmt
{

// What the wait looks at in a service's status. The hint is in milliseconds.
struct ServiceProgress
{
    std::uint32_t state;
    std::uint32_t checkPoint;
    std::uint32_t waitHint;
};

// How long to sleep between two looks, in milliseconds: a tenth of what the service says it needs, within 1 s and 10 s.
constexpr std::uint32_t pollInterval(std::uint32_t waitHint) noexcept
{
    return std::clamp<std::uint32_t>(waitHint / 10, 1000, 10000);
}

// Waits while the service stays in the pending state and makes progress: until it leaves the state, cannot be queried,
// or has let its own wait hint pass without a new check point. Service has
//     std::optional<ServiceProgress> query();      nothing when the status cannot be read
//     std::uint32_t ticks();                       milliseconds, wrapping around
//     void sleep(std::uint32_t milliseconds);
template <class Service>
void waitWhilePending(Service& service, std::uint32_t pendingState)
{
    // That this first look may fail is of no account: then nothing is pending.
    ServiceProgress progress = service.query().value_or(ServiceProgress{});
    std::uint32_t start = service.ticks();
    std::uint32_t checkPoint = progress.checkPoint;
    while (progress.state == pendingState)
    {
        service.sleep(pollInterval(progress.waitHint));
        const std::optional<ServiceProgress> now = service.query();
        if (!now)
        {
            return;
        }
        progress = *now;
        if (progress.checkPoint > checkPoint)
        {
            start = service.ticks();
            checkPoint = progress.checkPoint;
        }
        else if (service.ticks() - start > progress.waitHint)
        {
            return;
        }
    }
}

} // namespace TMgmt
