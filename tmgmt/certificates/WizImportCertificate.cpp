#include "tmgmt/certificates/WizImportCertificate.h"

#include "brimlow/security/CertStore.h"
#include "brimlow/security/PasswordException.h"
#include "brimlow/system/Encoder.h"
#include "brimlow/system/FileStream.h"
#include "tmgmt/certificates/EnterPasswordDlg.h"
#include "tmgmt/certificates/rememberedSubject.h"
#include "tmgmt/certificates/reportFailure.h"
#include "tmgmt/ui/WaitCursor.h"

namespace TMgmt
{
namespace
{

Security::SmartPtr<Security::CertStore> openStore()
{
    auto store = Security::CertStore::getCertStoreInstance();
    store->open(false);
    return store;
}

// False when the file has a password.
bool importWithoutPassword(const Core::String& path)
{
    const WaitCursor wait;
    try
    {
        openStore()->importPKCS12(path);
        return true;
    }
    catch (const Security::PasswordException&)
    {
        return false;
    }
}

} // namespace

bool WizImportCertificate::readRememberedSubject(Security::CertificateInfo& subject)
{
    return attempt(
        [&]
        {
            subject = rememberedSubject();
            return true;
        });
}

bool WizImportCertificate::takeSubject(const Security::CertificateInfo& subject)
{
    return attempt(
        [&]
        {
            rememberSubject(subject);
            m_subject = subject;
            m_request = {};
            return true;
        });
}

bool WizImportCertificate::createSelfSigned()
{
    return attempt(
        [this]
        {
            const WaitCursor wait;
            openStore()->createPKCS12(m_subject);
            return true;
        });
}

bool WizImportCertificate::saveRequest(const std::wstring& path)
{
    return attempt(
        [&]
        {
            const WaitCursor wait;
            Core::IO::FileStream file(path);
            if (m_request.empty())
            {
                m_request = openStore()->createPKCS12Request(m_subject);
            }
            file.write(Core::Encoder::convertStringToUTF8(m_request));
            file.flush();
            return true;
        });
}

bool WizImportCertificate::importFile(const std::wstring& path, HWND owner)
{
    return attempt(
        [&]
        {
            if (importWithoutPassword(path))
            {
                return true;
            }
            EnterPasswordDlg dialog;
            if (dialog.show(owner) != IDOK)
            {
                return false;
            }
            const WaitCursor wait;
            openStore()->importPKCS12(path, dialog.password->get());
            return true;
        });
}

bool WizImportCertificate::attempt(const std::function<bool()>& step)
{
    try
    {
        return step();
    }
    catch (const Core::Exception& exception)
    {
        reportFailure(exception, wizardErrorCaption);
        return false;
    }
}

} // namespace TMgmt
