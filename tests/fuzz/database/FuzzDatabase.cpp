#include "checkDatabase.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <unistd.h>

// The file is best on a disk in memory: TMPDIR=/dev/shm.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const std::string path =
        (std::filesystem::temp_directory_path() / ("fuzz-" + std::to_string(getpid()) + ".db")).string();
    checkDatabase(Core::String::fromUtf8(path), {reinterpret_cast<const char*>(data), size});
    return 0;
}
