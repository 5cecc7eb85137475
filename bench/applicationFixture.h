#pragma once

#include <cstddef>

namespace Bench
{

// What is in each of the applications that are measured.
inline constexpr std::size_t templatesOfEach = 10;
inline constexpr std::size_t foldersOfEach = 3;
inline constexpr std::size_t usersOfEach = 5;

// Puts so many applications and users into the database and nothing else into the server's files. Each application
// lists the first usersOfEach users. Afterwards Fixtures::make("applications", count) and Fixtures::make("users",
// count) put back what was changed.
void makeApplications(std::size_t applications, std::size_t users);

} // namespace Bench
