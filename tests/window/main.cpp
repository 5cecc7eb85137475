#include "host/HostTest.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <commctrl.h>
#include <ole2.h>

extern "C" int wmain(int argumentCount, wchar_t** arguments)
{
    testing::InitGoogleTest(&argumentCount, arguments);
    OleInitialize(nullptr);
    const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&controls);
    int result = 0;
    {
        const ForeignRegistration registration;
        result = RUN_ALL_TESTS();
    }
    OleUninitialize();
    return result;
}
