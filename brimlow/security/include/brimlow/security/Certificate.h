#pragma once

#include "brimlow/system/Object.h"
#include "brimlow/system/String.h"

#include <string>

namespace Security
{

// What is to be said about an installed certificate. A value: it stays as it is when the certificate is removed.
class Certificate : public Core::Object
{
  public:
    struct Fields
    {
        Core::String issuerCN;
        Core::String subjectCN;
        Core::String serialNumber;
        std::string fingerprint;
    };

    explicit Certificate(Fields fields);

    // The common name of the issuer and of the subject; of several the last one, empty where there is none. Control
    // characters, which could hide a part of the name, are U+FFFD.
    Core::String getIssuerCN() const { return m_fields.issuerCN; }
    Core::String getSubjectCN() const { return m_fields.subjectCN; }
    // Upper-case hexadecimal, two digits a byte, behind a minus sign where it is negative.
    Core::String getSerialNumber() const { return m_fields.serialNumber; }
    // SHA-256 over the whole certificate, 64 digits of upper-case hexadecimal. Two certificates never share it.
    const std::string& getFingerprint() const noexcept { return m_fields.fingerprint; }

  private:
    Fields m_fields;
};

} // namespace Security
