#include "certificates/installCertificates.h"

#include "certificates/Authority.h"
#include "kit/ServerFiles.h"

#include <brimlow/security/CertStore.h>

namespace Acceptance
{

void installCertificates(const std::vector<std::wstring>& names)
{
    const auto file = ServerFiles::folder() / L"incoming.p12";
    long serialNumber = 0;
    for (const std::wstring& name : names)
    {
        authority().issue(name, ++serialNumber, file);
        Security::CertStore::getCertStoreInstance()->importPKCS12(file.wstring());
    }
    std::filesystem::remove(file);
}

} // namespace Acceptance
