#pragma once

#include "brimlow/security/CertificateInfo.h"

#include "openssl.h"

namespace Security
{

// Whom a certificate is for, in the terms of X.509.
class Subject
{
  public:
    // Throws Core::Exception, with a sentence that names the value, for one that a certificate cannot hold.
    explicit Subject(const CertificateInfo& info);

    X509_NAME* name() const noexcept { return m_name.get(); }
    // What a server's certificate says about its use: the name or address that it is valid for, and that it is a
    // server's and no authority's.
    STACK_OF(X509_EXTENSION) * extensions() const noexcept { return m_extensions.get(); }

  private:
    NamePtr m_name;
    ExtensionsPtr m_extensions;
};

} // namespace Security
