#include "SecurityTest.h"

#include "PrintTo.h"
#include "refusal.h"

#include "Subject.h"

#include <gmock/gmock.h>

#include <ostream>

using Core::String;
using Security::CertificateInfo;
using Security::Subject;

namespace
{

struct Field
{
    const wchar_t* label;
    void (CertificateInfo::*set)(String);
    int nid;
    int maxLength;
    bool asciiOnly;
};

std::ostream& operator<<(std::ostream& stream, const Field& field)
{
    return stream << String(field.label).toUtf8();
}

const Field texts[] = {
    {L"Organization Name", &CertificateInfo::setOrganizationName, NID_organizationName, 64, false},
    {L"Organizational Unit", &CertificateInfo::setOrganizationalUnit, NID_organizationalUnitName, 64, false},
    {L"Domain Name", &CertificateInfo::setCommonName, NID_commonName, 64, true},
    {L"Address", &CertificateInfo::setAddress, NID_streetAddress, 128, false},
    {L"State/Province", &CertificateInfo::setState, NID_stateOrProvinceName, 128, false},
    {L"City/Locality", &CertificateInfo::setCity, NID_localityName, 128, false},
    {L"Zip Code", &CertificateInfo::setZip, NID_postalCode, 40, false},
    {L"Email Address", &CertificateInfo::setEmail, NID_pkcs9_emailAddress, 255, true},
};

std::string entry(const Subject& subject, int nid)
{
    const int at = X509_NAME_get_index_by_NID(subject.name(), nid, -1);
    const ASN1_STRING* value = X509_NAME_ENTRY_get_data(X509_NAME_get_entry(subject.name(), at));
    return std::string(reinterpret_cast<const char*>(ASN1_STRING_get0_data(value)),
                       static_cast<std::size_t>(ASN1_STRING_length(value)));
}

int entryType(const Subject& subject, int nid)
{
    const int at = X509_NAME_get_index_by_NID(subject.name(), nid, -1);
    return ASN1_STRING_type(X509_NAME_ENTRY_get_data(X509_NAME_get_entry(subject.name(), at)));
}

class SubjectText : public testing::TestWithParam<Field>
{
  protected:
    const Field& field() const { return GetParam(); }
    CertificateInfo infoWith(const String& value) const
    {
        CertificateInfo info = infoFor(L"server.example.com");
        (info.*field().set)(value);
        return info;
    }
    String refusalOf(const String& value) const
    {
        return refusal([&] { Subject subject(infoWith(value)); });
    }
    String label() const { return field().label; }
};

INSTANTIATE_TEST_SUITE_P(Fields, SubjectText, testing::ValuesIn(texts));

TEST_P(SubjectText, GoesIntoTheCertificateAsItIs)
{
    for (const wchar_t* value : {L"x", L"O'Brien, \"Sons\" / Co. = 1+2; <a> #5 \\ %n", L" a b "})
    {
        EXPECT_EQ(String(value).toUtf8(), entry(Subject(infoWith(value)), field().nid));
    }
}

TEST_P(SubjectText, MayBeOfAnyScriptUnlessItIsAnAddressOfTheNet)
{
    const wchar_t value[] = L"Z\u00FCrich \u041C\u043E\u0441\u043A\u0432\u0430 \u6771\u4EAC \U0001F511";
    if (field().asciiOnly)
    {
        EXPECT_EQ(L"\"" + label() +
                      L"\" may hold only letters from A to Z, digits and signs of ASCII. Please write it in these.",
                  refusalOf(value));
    }
    else
    {
        EXPECT_EQ(String(value).toUtf8(), entry(Subject(infoWith(value)), field().nid));
        EXPECT_EQ(V_ASN1_UTF8STRING, entryType(Subject(infoWith(value)), field().nid));
    }
}

TEST_P(SubjectText, HasALargestLengthInCharacters)
{
    const auto length = static_cast<std::size_t>(field().maxLength);
    EXPECT_EQ(L"accepted", refusalOf(std::wstring(length, L'x')));
    EXPECT_EQ(L"\"" + label() + L"\" is too long: a certificate holds " + String(std::to_wstring(length)) +
                  L" characters of it, and these are " + String(std::to_wstring(length + 1)) + L".",
              refusalOf(std::wstring(length + 1, L'x')));
    if (!field().asciiOnly)
    {
        String keys;
        for (std::size_t count = 0; count < length; ++count)
        {
            keys += L"\U0001F511";
        }
        EXPECT_EQ(L"accepted", refusalOf(keys));
        EXPECT_NE(L"accepted", refusalOf(keys + L"x"));
    }
}

TEST_P(SubjectText, MustNotBeEmpty)
{
    EXPECT_EQ(L"\"" + label() + L"\" is empty. Please enter it.", refusalOf(L""));
}

TEST_P(SubjectText, MustNotHoldWhatCannotBePrinted)
{
    for (const String& value :
         {String(std::wstring(L"a\0b", 3)), String(L"a\nb"), String(L"\x1F"), String(L"\x7F"), String(u"a\xD800"),
          String(u"\xDC00"
                 u"a")})
    {
        EXPECT_EQ(L"\"" + label() + L"\" holds a character that cannot be printed. Please remove it.",
                  refusalOf(value));
    }
}

TEST(SubjectCountry, IsTwoLettersInCapitals)
{
    CertificateInfo info = infoFor(L"server.example.com");
    for (const auto& [value, expected] : {std::pair(L"US", "US"), std::pair(L"fr", "FR"), std::pair(L"zA", "ZA")})
    {
        info.setCountry(value);
        EXPECT_EQ(expected, entry(Subject(info), NID_countryName));
        EXPECT_EQ(V_ASN1_PRINTABLESTRING, entryType(Subject(info), NID_countryName));
    }
    for (const wchar_t* value : {L"U", L"USA", L"U1", L"U ", L"\u00C4B", L"@A", L"A[", L"\U0001F511"})
    {
        info.setCountry(value);
        EXPECT_EQ(L"\"Country Code\" must be two letters from A to Z, such as US or FR.",
                  refusal([&] { Subject subject(info); }));
    }
    info.setCountry({});
    EXPECT_EQ(L"\"Country Code\" is empty. Please enter it.", refusal([&] { Subject subject(info); }));
}

TEST(SubjectName, GoesFromTheLargeToTheSmall)
{
    const Subject subject(infoFor(L"server.example.com"));
    std::vector<int> order;
    for (int at = 0; at < X509_NAME_entry_count(subject.name()); ++at)
    {
        order.push_back(OBJ_obj2nid(X509_NAME_ENTRY_get_object(X509_NAME_get_entry(subject.name(), at))));
    }
    EXPECT_THAT(order, testing::ElementsAre(NID_countryName, NID_stateOrProvinceName, NID_localityName,
                                            NID_streetAddress, NID_postalCode, NID_organizationName,
                                            NID_organizationalUnitName, NID_commonName, NID_pkcs9_emailAddress));
    EXPECT_EQ(V_ASN1_IA5STRING, entryType(subject, NID_pkcs9_emailAddress));
}

TEST(SubjectAlternativeName, IsTheDomainNameOrTheAddress)
{
    const std::tuple<const wchar_t*, int, std::string> names[] = {
        {L"server.example.com", GEN_DNS, "server.example.com"},
        {L"localhost", GEN_DNS, "localhost"},
        {L"*.example.com", GEN_DNS, "*.example.com"},
        // A text that OpenSSL's own configuration language would take for two names.
        {L"a.example.com,DNS:b.example.com", GEN_DNS, "a.example.com,DNS:b.example.com"},
        {L"192.168.0.1", GEN_IPADD, std::string("\xC0\xA8\x00\x01", 4)},
        {L"::1", GEN_IPADD, std::string(15, '\0') + '\x01'},
        {L"192.168.0.256", GEN_DNS, "192.168.0.256"},
    };
    for (const auto& [name, kind, value] : names)
    {
        const Subject subject(infoFor(name));
        const Security::GeneralNamesPtr found(
            static_cast<GENERAL_NAMES*>(X509V3_get_d2i(subject.extensions(), NID_subject_alt_name, nullptr, nullptr)));
        ASSERT_EQ(1, sk_GENERAL_NAME_num(found.get()));
        int type = 0;
        const auto* text =
            static_cast<ASN1_STRING*>(GENERAL_NAME_get0_value(sk_GENERAL_NAME_value(found.get(), 0), &type));
        EXPECT_EQ(kind, type) << value;
        EXPECT_EQ(value, std::string(reinterpret_cast<const char*>(ASN1_STRING_get0_data(text)),
                                     static_cast<std::size_t>(ASN1_STRING_length(text))));
    }
}

} // namespace
