#pragma once

#include <cstdlib>

namespace Hostile
{

// A number that a run may have from the environment.
inline unsigned long fromEnvironment(const char* name, unsigned long standard)
{
    const char* const text = std::getenv(name);
    return text ? std::strtoul(text, nullptr, 10) : standard;
}

} // namespace Hostile
