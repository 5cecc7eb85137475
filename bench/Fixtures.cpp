#include "Fixtures.h"

#include <cstdio>
#include <stdexcept>

namespace Bench::Fixtures
{

void make(const char* name, std::size_t number)
{
    std::printf("fixture\t%s\t%zu\n", name, number);
    std::fflush(stdout);
    for (int character = std::getchar(); character != '\n'; character = std::getchar())
    {
        if (character == EOF)
        {
            throw std::runtime_error("nobody makes the fixtures; run ./bench.sh");
        }
    }
}

} // namespace Bench::Fixtures
