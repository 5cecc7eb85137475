#include "targets.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

// Which of the targets it is says the environment variable FUZZ_TARGET.
static const FuzzTarget& chosenTarget()
{
    const char* const name = std::getenv("FUZZ_TARGET");
    const auto targets = fuzzTargets();
    const auto found = std::ranges::find(targets, name ? name : "", &FuzzTarget::name);
    if (found == targets.end())
    {
        std::fputs("FUZZ_TARGET must name one of the folders beside Fuzzer.cpp.\n", stderr);
        std::exit(2);
    }
    return *found;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const FuzzTarget& target = chosenTarget();
    target.check({reinterpret_cast<const char*>(data), size});
    return 0;
}
