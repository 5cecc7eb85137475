#include "tmgmt/certificates/rules/CertificateSubject.h"

#include <algorithm>

#include "brimlow/system/trim.h"

namespace TMgmt
{

using Security::CertificateInfo;

const std::array<SubjectField, 9> subjectFields{{
    {L"CertInfo-OrgName", &CertificateInfo::getOrganizationName, &CertificateInfo::setOrganizationName},
    {L"CertInfo-OrgDepartment", &CertificateInfo::getOrganizationalUnit, &CertificateInfo::setOrganizationalUnit},
    {L"CertInfo-CommonName", &CertificateInfo::getCommonName, &CertificateInfo::setCommonName},
    {L"CertInfo-Country", &CertificateInfo::getCountry, &CertificateInfo::setCountry},
    {L"CertInfo-Address", &CertificateInfo::getAddress, &CertificateInfo::setAddress},
    {L"CertInfo-State", &CertificateInfo::getState, &CertificateInfo::setState},
    {L"CertInfo-City", &CertificateInfo::getCity, &CertificateInfo::setCity},
    {L"CertInfo-Zip", &CertificateInfo::getZip, &CertificateInfo::setZip},
    {L"CertInfo-Email", &CertificateInfo::getEmail, &CertificateInfo::setEmail},
}};

CertificateInfo trimmed(const CertificateInfo& subject)
{
    CertificateInfo result;
    for (const SubjectField& field : subjectFields)
    {
        (result.*field.set)(Core::trim((subject.*field.get)()));
    }
    return result;
}

const wchar_t* faultOf(const CertificateInfo& subject) noexcept
{
    const bool isMissing =
        std::ranges::any_of(subjectFields, [&](const SubjectField& field) { return (subject.*field.get)().empty(); });
    return isMissing ? fieldIsMissing : nullptr;
}

} // namespace TMgmt
