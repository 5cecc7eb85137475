#pragma once

#include <array>

namespace Database
{

// 128 random bits that name one thing and never another. In SQL: randomblob(16).
using RandomId = std::array<unsigned char, 16>;

} // namespace Database
