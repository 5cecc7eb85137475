#include "Report.h"
#include "SystemCalls.h"

#include <gtest/gtest.h>

#include <iostream>

#ifdef _WIN32
#include "windows/childProgram.h"

extern "C" int wmain(int argumentCount, wchar_t** arguments)
#else
int main(int argumentCount, char** arguments)
#endif
{
    SystemCalls::watch();
#ifdef _WIN32
    if (isChildProgram(argumentCount, arguments))
    {
        runChildProgram(arguments);
    }
#endif
    testing::InitGoogleTest(&argumentCount, arguments);
    const int result = RUN_ALL_TESTS();
    std::cout << Report::instance().text();
    return result;
}
