#include "describe.h"

#include "failure.h"

#include <openssl/err.h>

#include <array>
#include <cstddef>

namespace Security
{

namespace
{

std::string hexadecimal(const unsigned char* bytes, std::size_t size)
{
    std::string text;
    for (std::size_t at = 0; at < size; ++at)
    {
        text += "0123456789ABCDEF"[bytes[at] >> 4];
        text += "0123456789ABCDEF"[bytes[at] & 15];
    }
    return text;
}

Core::String commonName(const X509_NAME* name)
{
    // The last one is the most specific.
    int at = -1;
    for (int next = X509_NAME_get_index_by_NID(name, NID_commonName, -1); next >= 0;
         next = X509_NAME_get_index_by_NID(name, NID_commonName, at))
    {
        at = next;
    }
    if (at < 0)
    {
        return {};
    }
    unsigned char* bytes = nullptr;
    const int size = ASN1_STRING_to_UTF8(&bytes, X509_NAME_ENTRY_get_data(X509_NAME_get_entry(name, at)));
    if (size < 0)
    {
        ERR_clear_error();
        return {};
    }
    const MemoryPtr owner(bytes);
    const Core::String text =
        Core::String::fromUtf8({reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(size)});
    std::basic_string<Core::Char> shown(text.view());
    for (Core::Char& unit : shown)
    {
        unit = unit < 0x20 || unit == 0x7F ? Core::Char(0xFFFD) : unit;
    }
    return shown;
}

Core::String serialNumber(const X509& certificate)
{
    const ASN1_INTEGER* number = X509_get0_serialNumber(&certificate);
    const std::string digits =
        hexadecimal(ASN1_STRING_get0_data(number), static_cast<std::size_t>(ASN1_STRING_length(number)));
    return Core::String::fromUtf8((ASN1_STRING_type(number) == V_ASN1_NEG_INTEGER ? "-" : "") + digits);
}

} // namespace

std::string fingerprintOf(const X509& certificate)
{
    std::array<unsigned char, EVP_MAX_MD_SIZE> digest;
    unsigned size = 0;
    check(X509_digest(&certificate, EVP_sha256(), digest.data(), &size), L"A certificate cannot be read");
    return hexadecimal(digest.data(), size);
}

Certificate::Fields describe(const X509& certificate)
{
    return {commonName(X509_get_issuer_name(&certificate)), commonName(X509_get_subject_name(&certificate)),
            serialNumber(certificate), fingerprintOf(certificate)};
}

} // namespace Security
