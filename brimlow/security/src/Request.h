#pragma once

#include "Subject.h"
#include "openssl.h"

#include <string>

namespace Security
{

// A request to a certification authority, PKCS #10 in PEM, signed with SHA-256.
std::string makeRequest(EVP_PKEY& key, const Subject& subject);

} // namespace Security
