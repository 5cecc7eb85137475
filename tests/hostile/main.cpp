#include "kit/program.h"

extern "C" int wmain(int argumentCount, wchar_t** arguments)
{
    return Acceptance::runTests(argumentCount, arguments, std::chrono::minutes{20});
}
