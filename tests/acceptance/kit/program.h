#pragma once

#include <chrono>

namespace Acceptance
{

// The whole of a program that tests the registered plug-in: its command line is googletest's. Refuses to test another
// plug-in than the one beside the program. A crash and a test that takes longer end the process, with what there is to
// say about it. Gives the exit code.
int runTests(int argumentCount, wchar_t** arguments, std::chrono::seconds longestTest);

} // namespace Acceptance
