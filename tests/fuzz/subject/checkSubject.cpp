// Any nine lines as the subject of a certificate: they are refused with a sentence, or else the certificate's name
// holds them to the letter.

#include "Subject.h"
#include "checks.h"
#include "openssl.h"
#include "rules.h"

#include "tmgmt/certificates/rules/CertificateSubject.h"

#include <algorithm>
#include <optional>
#include <string>

using Core::String;
using Security::CertificateInfo;
using Security::Subject;

namespace
{

String valueAt(X509_NAME* name, int at)
{
    unsigned char* bytes = nullptr;
    const int size = ASN1_STRING_to_UTF8(&bytes, X509_NAME_ENTRY_get_data(X509_NAME_get_entry(name, at)));
    require(size > 0, "every value of the name is a text");
    const Security::MemoryPtr owner(bytes);
    return String::fromUtf8({reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(size)});
}

void requireHolds(const Subject& subject, const CertificateInfo& info)
{
    constexpr int fields = 9;
    require(X509_NAME_entry_count(subject.name()) == fields, "the name has all fields");
    const String values[fields] = {info.getCountry().toUpper(),
                                   info.getState(),
                                   info.getCity(),
                                   info.getAddress(),
                                   info.getZip(),
                                   info.getOrganizationName(),
                                   info.getOrganizationalUnit(),
                                   info.getCommonName(),
                                   info.getEmail()};
    for (int at = 0; at < fields; ++at)
    {
        require(valueAt(subject.name(), at) == values[at], "a field is in the name to the letter");
    }
    require(sk_X509_EXTENSION_num(subject.extensions()) == 4, "a server's certificate has its four extensions");
}

} // namespace

void checkSubject(std::string_view content)
{
    CertificateInfo entered;
    const std::vector<String> lines = linesOf(content, TMgmt::subjectFields.size());
    for (std::size_t at = 0; at < lines.size(); ++at)
    {
        (entered.*TMgmt::subjectFields[at].set)(lines[at]);
    }
    const CertificateInfo info = TMgmt::trimmed(entered);
    std::optional<Subject> subject;
    if (tryTo([&] { subject.emplace(info); }))
    {
        require(!TMgmt::faultOf(info), "what the wizard refuses is no subject");
        requireHolds(*subject, info);
    }
}
