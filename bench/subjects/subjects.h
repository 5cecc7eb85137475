#pragma once

#include <cstddef>

// What is measured: one function and one file each, listed in main.cpp, and with its sizes in measure.py.
namespace Bench
{

using Subject = void (*)(std::size_t size, std::size_t repetitions);

void loading(std::size_t size, std::size_t repetitions);
void loadingHotFolders(std::size_t size, std::size_t repetitions);
void loadingApplications(std::size_t size, std::size_t repetitions);
void applications(std::size_t size, std::size_t repetitions);
void certificates(std::size_t size, std::size_t repetitions);
void hotFolders(std::size_t size, std::size_t repetitions);
void logFiles(std::size_t size, std::size_t repetitions);
void privateFonts(std::size_t size, std::size_t repetitions);
void users(std::size_t size, std::size_t repetitions);
void usersOfApplications(std::size_t size, std::size_t repetitions);

} // namespace Bench
