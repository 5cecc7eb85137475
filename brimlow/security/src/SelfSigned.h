#pragma once

#include "Subject.h"
#include "openssl.h"

namespace Security
{

// A certificate that vouches for itself: signed with SHA-256, good for 825 days, with a random serial number.
X509Ptr makeSelfSigned(EVP_PKEY& key, const Subject& subject);

} // namespace Security
