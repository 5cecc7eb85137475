#include "tmgmt/certificates/rules/CertificateSubject.h"
#include "PrintTo.h"

#include <gtest/gtest.h>

using Core::String;
using Security::CertificateInfo;
using TMgmt::SubjectField;
using TMgmt::subjectFields;

namespace
{

// Every text is its own number between blanks.
CertificateInfo filled()
{
    CertificateInfo subject;
    for (std::size_t i = 0; i < subjectFields.size(); ++i)
    {
        (subject.*subjectFields[i].set)(L" \t" + std::to_wstring(i) + L"\u3000");
    }
    return subject;
}

TEST(CertificateSubject, IsRememberedUnderNineSettings)
{
    CertificateInfo subject;
    subject.setOrganizationName(L"name");
    subject.setOrganizationalUnit(L"unit");
    subject.setCommonName(L"domain");
    subject.setCountry(L"country");
    subject.setAddress(L"address");
    subject.setState(L"state");
    subject.setCity(L"city");
    subject.setZip(L"zip");
    subject.setEmail(L"email");
    const struct
    {
        const wchar_t* key;
        const wchar_t* value;
    } rows[] = {
        {L"CertInfo-OrgName", L"name"},      {L"CertInfo-OrgDepartment", L"unit"},
        {L"CertInfo-CommonName", L"domain"}, {L"CertInfo-Country", L"country"},
        {L"CertInfo-Address", L"address"},   {L"CertInfo-State", L"state"},
        {L"CertInfo-City", L"city"},         {L"CertInfo-Zip", L"zip"},
        {L"CertInfo-Email", L"email"},
    };
    ASSERT_EQ(std::size(rows), subjectFields.size());
    for (std::size_t i = 0; i < subjectFields.size(); ++i)
    {
        EXPECT_EQ(String(rows[i].key), String(subjectFields[i].key));
        EXPECT_EQ(String(rows[i].value), (subject.*subjectFields[i].get)()) << i;
    }
}

TEST(CertificateSubject, SetsWhatItGets)
{
    for (const SubjectField& field : subjectFields)
    {
        CertificateInfo subject;
        (subject.*field.set)(L"text");
        for (const SubjectField& other : subjectFields)
        {
            EXPECT_EQ(&other == &field, (subject.*other.get)() == String(L"text"))
                << String(field.key).toUtf8() << ' ' << String(other.key).toUtf8();
        }
    }
}

TEST(CertificateSubject, IsTrimmedInEveryText)
{
    const CertificateInfo subject = TMgmt::trimmed(filled());
    for (std::size_t i = 0; i < subjectFields.size(); ++i)
    {
        EXPECT_EQ(String(std::to_wstring(i)), (subject.*subjectFields[i].get)());
    }
}

TEST(CertificateSubject, NeedsEveryText)
{
    EXPECT_EQ(nullptr, TMgmt::faultOf(filled()));
    for (const SubjectField& field : subjectFields)
    {
        CertificateInfo subject = filled();
        (subject.*field.set)(L"");
        EXPECT_EQ(String(L"All fields are required"), String(TMgmt::faultOf(subject))) << String(field.key).toUtf8();
    }
}

TEST(CertificateSubject, OfBlanksOnlyCountsAsEmpty)
{
    for (const wchar_t* const blanks : {L" ", L" \t ", L"\u00A0", L"\u3000\u2003"})
    {
        CertificateInfo subject = filled();
        subject.setZip(blanks);
        EXPECT_EQ(String(L"All fields are required"), String(TMgmt::faultOf(TMgmt::trimmed(subject))));
    }
}

} // namespace
