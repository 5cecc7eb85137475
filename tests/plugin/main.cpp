#include "kit/Watchdog.h"

#include <gtest/gtest.h>

#include <ole2.h>

extern "C" int wmain(int argumentCount, wchar_t** arguments)
{
    testing::InitGoogleTest(&argumentCount, arguments);
    // As the console that the plug-in is made for; otherwise Windows would show 96 dots per inch everywhere.
    SetProcessDPIAware();
    OleInitialize(nullptr);
    // Lives until the process ends: googletest owns its listeners.
    testing::UnitTest::GetInstance()->listeners().Append(new Acceptance::Watchdog(std::chrono::seconds{60}));
    const int result = RUN_ALL_TESTS();
    OleUninitialize();
    return result;
}
