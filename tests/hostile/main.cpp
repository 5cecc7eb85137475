#include "kit/program.h"

#include <filesystem>

extern "C" int wmain(int argumentCount, wchar_t** arguments)
{
    // Names of files that the hostile console gives may be relative.
    std::filesystem::current_path(std::filesystem::temp_directory_path());
    return Acceptance::runTests(argumentCount, arguments, std::chrono::minutes{20});
}
