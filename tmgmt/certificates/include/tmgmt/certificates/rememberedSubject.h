#pragma once

#include "brimlow/security/CertificateInfo.h"

namespace TMgmt
{

// What the wizard was last told about whom a certificate is for. It is kept among the server's settings. Both throw
// Core::Exception when their file cannot be read or written.

// A text that was never entered is empty.
Security::CertificateInfo rememberedSubject();

// All texts are stored in one step or none is.
void rememberSubject(const Security::CertificateInfo& subject);

} // namespace TMgmt
