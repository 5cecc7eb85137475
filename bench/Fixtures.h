#pragma once

#include <cstddef>

namespace Bench::Fixtures
{

// Asks the script that runs this program for what is to lie on the disk: name and number as in fixtures.py. Returns
// once it lies there; what is there already stays, so asking again puts back what was deleted. The script makes the
// files outside Wine, where thousands of them take no time. Throws std::runtime_error when the script is gone.
void make(const char* name, std::size_t number);

} // namespace Bench::Fixtures
