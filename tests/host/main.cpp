#include "HostTest.h"

#include <ole2.h>

int wmain(int count, wchar_t** arguments)
{
    testing::InitGoogleTest(&count, arguments);
    if (FAILED(OleInitialize(nullptr)))
    {
        return 2;
    }
    int result;
    {
        const ForeignRegistration registration;
        result = RUN_ALL_TESTS();
    }
    OleUninitialize();
    return result;
}
