#pragma once

#include <array>

#include "brimlow/security/CertificateInfo.h"

namespace TMgmt
{

// One of the texts that say whom a certificate is for.
struct SubjectField
{
    // The setting of the server that remembers what was entered last.
    const wchar_t* key;
    const Core::String& (Security::CertificateInfo::*get)() const noexcept;
    void (Security::CertificateInfo::*set)(Core::String);
};

// In the order in which they are entered and stored.
extern const std::array<SubjectField, 9> subjectFields;

// Every text without the blanks around it.
Security::CertificateInfo trimmed(const Security::CertificateInfo& subject);

inline constexpr wchar_t fieldIsMissing[] = L"All fields are required";

// What is wrong with texts that are trimmed; null when nothing is. Whether a certificate can hold them is not looked at
// here: the library says it when it makes one.
const wchar_t* faultOf(const Security::CertificateInfo& subject) noexcept;

} // namespace TMgmt
