#pragma once

#include <chrono>
#include <cstddef>

// What is measured: one function and one file each (a file for several that go together), listed in main.cpp, and with
// its sizes in measure.py. patience: how long each comparison goes on.
namespace Bench
{

using Subject = void (*)(std::size_t size, std::chrono::milliseconds patience);

void accessList(std::size_t size, std::chrono::milliseconds patience);
void applications(std::size_t size, std::chrono::milliseconds patience);
void certificates(std::size_t size, std::chrono::milliseconds patience);
void everything(std::size_t size, std::chrono::milliseconds patience);
void hotFolders(std::size_t size, std::chrono::milliseconds patience);
void loading(std::size_t size, std::chrono::milliseconds patience);
void loadingApplications(std::size_t size, std::chrono::milliseconds patience);
void loadingLogFiles(std::size_t size, std::chrono::milliseconds patience);
void loadingPrivateFonts(std::size_t size, std::chrono::milliseconds patience);
void logFiles(std::size_t size, std::chrono::milliseconds patience);
void privateFonts(std::size_t size, std::chrono::milliseconds patience);
void resourceFiles(std::size_t size, std::chrono::milliseconds patience);
void resourceFolders(std::size_t size, std::chrono::milliseconds patience);
void settings(std::size_t size, std::chrono::milliseconds patience);
void templates(std::size_t size, std::chrono::milliseconds patience);
void users(std::size_t size, std::chrono::milliseconds patience);
void usersOfApplications(std::size_t size, std::chrono::milliseconds patience);

} // namespace Bench
