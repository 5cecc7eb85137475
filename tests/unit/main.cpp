#include <gtest/gtest.h>

#ifdef _WIN32
extern "C" int wmain(int argumentCount, wchar_t** arguments)
#else
int main(int argumentCount, char** arguments)
#endif
{
    testing::InitGoogleTest(&argumentCount, arguments);
    return RUN_ALL_TESTS();
}
