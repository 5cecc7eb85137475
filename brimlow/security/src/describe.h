#pragma once

#include "brimlow/security/Certificate.h"

#include "openssl.h"

#include <string>

namespace Security
{

// SHA-256 over the whole certificate, in upper-case hexadecimal.
std::string fingerprintOf(const X509& certificate);

Certificate::Fields describe(const X509& certificate);

} // namespace Security
