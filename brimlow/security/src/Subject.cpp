#include "Subject.h"

#include "brimlow/system/Exception.h"
#include "brimlow/system/StringFormatStream.h"

#include "failure.h"

#include <openssl/err.h>

#include <algorithm>
#include <optional>
#include <string>

namespace Security
{

namespace
{

using Core::String;

struct Field
{
    const String& (CertificateInfo::*value)() const noexcept;
    // As the administrator knows it.
    const wchar_t* label;
    int nid;
    // The type of the text in the certificate: UTF-8 for any script, the others for ASCII.
    int type;
    // In characters: the upper bounds of X.520, for the e-mail address that of RFC 5280.
    std::size_t maxLength;
};

// From the large to the small, as names in certificates usually are.
const Field fields[] = {
    {&CertificateInfo::getCountry, L"Country Code", NID_countryName, V_ASN1_PRINTABLESTRING, 2},
    {&CertificateInfo::getState, L"State/Province", NID_stateOrProvinceName, V_ASN1_UTF8STRING, 128},
    {&CertificateInfo::getCity, L"City/Locality", NID_localityName, V_ASN1_UTF8STRING, 128},
    {&CertificateInfo::getAddress, L"Address", NID_streetAddress, V_ASN1_UTF8STRING, 128},
    {&CertificateInfo::getZip, L"Zip Code", NID_postalCode, V_ASN1_UTF8STRING, 40},
    {&CertificateInfo::getOrganizationName, L"Organization Name", NID_organizationName, V_ASN1_UTF8STRING, 64},
    {&CertificateInfo::getOrganizationalUnit, L"Organizational Unit", NID_organizationalUnitName, V_ASN1_UTF8STRING,
     64},
    {&CertificateInfo::getCommonName, L"Domain Name", NID_commonName, V_ASN1_UTF8STRING, 64},
    {&CertificateInfo::getEmail, L"Email Address", NID_pkcs9_emailAddress, V_ASN1_IA5STRING, 255},
};

bool isHigh(Core::Char unit) noexcept
{
    return unit >= 0xD800 && unit < 0xDC00;
}

bool isLow(Core::Char unit) noexcept
{
    return unit >= 0xDC00 && unit < 0xE000;
}

bool isLetter(Core::Char unit) noexcept
{
    return unit >= 'A' && unit <= 'Z';
}

bool isControl(Core::Char unit) noexcept
{
    return unit < 0x20 || unit == 0x7F;
}

// The number of characters; none where one of them cannot stand in a certificate.
std::optional<std::size_t> countCharacters(String::View text)
{
    std::size_t count = 0;
    for (std::size_t at = 0; at < text.size(); ++at, ++count)
    {
        const bool pair = isHigh(text[at]) && at + 1 < text.size() && isLow(text[at + 1]);
        if (isControl(text[at]) || (!pair && (isHigh(text[at]) || isLow(text[at]))))
        {
            return std::nullopt;
        }
        at += pair ? 1 : 0;
    }
    return count;
}

bool isAscii(const String& text) noexcept
{
    const String::View units = text.view();
    return std::all_of(units.begin(), units.end(), [](Core::Char unit) { return unit < 0x80; });
}

[[noreturn]] void refuse(const wchar_t* sentence, const Field& field, std::size_t length = 0)
{
    throw Core::Exception(
        Core::format(sentence, field.label, static_cast<int>(field.maxLength), static_cast<int>(length)));
}

// The value in the form in which it goes into the certificate.
std::string valueOf(const CertificateInfo& info, const Field& field)
{
    const String& value = (info.*field.value)();
    const std::optional<std::size_t> length = countCharacters(value.view());
    if (value.empty())
    {
        refuse(L"\"{0}\" is empty. Please enter it.", field);
    }
    if (!length)
    {
        refuse(L"\"{0}\" holds a character that cannot be printed. Please remove it.", field);
    }
    if (field.nid == NID_countryName)
    {
        const String capitals = value.toUpper();
        if (capitals.length() != 2 || !isLetter(capitals[0]) || !isLetter(capitals[1]))
        {
            refuse(L"\"{0}\" must be two letters from A to Z, such as US or FR.", field);
        }
        return capitals.toUtf8();
    }
    if (*length > field.maxLength)
    {
        refuse(L"\"{0}\" is too long: a certificate holds {1} characters of it, and these are {2}.", field, *length);
    }
    const bool asciiOnly = field.type == V_ASN1_IA5STRING || field.nid == NID_commonName;
    if (asciiOnly && !isAscii(value))
    {
        refuse(L"\"{0}\" may hold only letters from A to Z, digits and signs of ASCII. Please write it in these.",
               field);
    }
    return value.toUtf8();
}

NamePtr makeName(const CertificateInfo& info)
{
    NamePtr name(checkMemory(X509_NAME_new()));
    for (const Field& field : fields)
    {
        const std::string value = valueOf(info, field);
        checkMemory(X509_NAME_add_entry_by_NID(name.get(), field.nid, field.type,
                                               reinterpret_cast<const unsigned char*>(value.data()),
                                               static_cast<int>(value.size()), -1, 0));
    }
    return name;
}

// What programs compare with the address that they connect to; they do not look at the common name.
GeneralNamesPtr makeAlternativeNames(const std::string& commonName)
{
    GeneralNamesPtr names(checkMemory(GENERAL_NAMES_new()));
    GENERAL_NAME* name = checkMemory(GENERAL_NAME_new());
    checkMemory(sk_GENERAL_NAME_push(names.get(), name));
    if (ASN1_OCTET_STRING* address = a2i_IPADDRESS(commonName.c_str()))
    {
        GENERAL_NAME_set0_value(name, GEN_IPADD, address);
        return names;
    }
    ERR_clear_error();
    ASN1_IA5STRING* text = checkMemory(ASN1_IA5STRING_new());
    GENERAL_NAME_set0_value(name, GEN_DNS, text);
    checkMemory(ASN1_STRING_set(text, commonName.data(), static_cast<int>(commonName.size())));
    return names;
}

void add(ExtensionsPtr& extensions, int nid, void* value, bool critical)
{
    auto* list = extensions.release();
    const int added = X509V3_add1_i2d(&list, nid, value, critical ? 1 : 0, X509V3_ADD_APPEND);
    extensions.reset(list);
    checkMemory(added);
}

ExtensionsPtr makeExtensions(const std::string& commonName)
{
    ExtensionsPtr extensions;

    const Owned<BASIC_CONSTRAINTS, BASIC_CONSTRAINTS_free> noAuthority(checkMemory(BASIC_CONSTRAINTS_new()));
    add(extensions, NID_basic_constraints, noAuthority.get(), true);

    // Bits count from the left: digitalSignature is 0, keyEncipherment 2.
    const Owned<ASN1_BIT_STRING, ASN1_BIT_STRING_free> keyUsage(checkMemory(ASN1_BIT_STRING_new()));
    checkMemory(ASN1_BIT_STRING_set_bit(keyUsage.get(), 0, 1));
    checkMemory(ASN1_BIT_STRING_set_bit(keyUsage.get(), 2, 1));
    add(extensions, NID_key_usage, keyUsage.get(), true);

    const Owned<EXTENDED_KEY_USAGE, EXTENDED_KEY_USAGE_free> purposes(checkMemory(EXTENDED_KEY_USAGE_new()));
    checkMemory(sk_ASN1_OBJECT_push(purposes.get(), OBJ_nid2obj(NID_server_auth)));
    add(extensions, NID_ext_key_usage, purposes.get(), false);

    add(extensions, NID_subject_alt_name, makeAlternativeNames(commonName).get(), false);
    return extensions;
}

} // namespace

Subject::Subject(const CertificateInfo& info)
    : m_name(makeName(info)), m_extensions(makeExtensions(info.getCommonName().toUtf8()))
{
}

} // namespace Security
