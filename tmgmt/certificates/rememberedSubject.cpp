#include "tmgmt/certificates/rememberedSubject.h"

#include "tmgmt/certificates/rules/CertificateSubject.h"
#include "tmgmt/settings/ConfigurationStore.h"

namespace TMgmt
{

Security::CertificateInfo rememberedSubject()
{
    const Core::Configuration settings = readSettings();
    Security::CertificateInfo subject;
    for (const SubjectField& field : subjectFields)
    {
        Core::String value;
        settings.getValue(field.key, value);
        (subject.*field.set)(value);
    }
    return subject;
}

void rememberSubject(const Security::CertificateInfo& subject)
{
    std::vector<std::pair<Core::String, Core::String>> settings;
    for (const SubjectField& field : subjectFields)
    {
        settings.emplace_back(field.key, (subject.*field.get)());
    }
    writeSettings(settings);
}

} // namespace TMgmt
