#include "checkPkcs12.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    checkPkcs12({reinterpret_cast<const char*>(data), size});
    return 0;
}
