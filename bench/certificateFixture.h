#pragma once

#include <cstddef>

namespace Bench
{

// Puts so many certificates into the key store, all with one key: the making of keys is not what is measured.
void makeCertificates(std::size_t size);

} // namespace Bench
