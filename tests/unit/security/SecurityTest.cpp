#include "SecurityTest.h"

#include "brimlow/security/CertIterator.h"
#include "brimlow/system/AtomicFile.h"
#include "brimlow/system/FileSystem.h"
#include "brimlow/system/Process.h"

#include <stdexcept>

using Core::String;

Security::CertificateInfo infoFor(const wchar_t* commonName)
{
    Security::CertificateInfo info;
    info.setOrganizationName(L"Brimlow Ltd");
    info.setOrganizationalUnit(L"Rendering");
    info.setCommonName(commonName);
    info.setCountry(L"CH");
    info.setAddress(L"Main Street 7");
    info.setState(L"Bern");
    info.setCity(L"Thun");
    info.setZip(L"3600");
    info.setEmail(L"admin@example.com");
    return info;
}

String corpusFile(const wchar_t* name)
{
    return String(L"" TM_PKCS12_CORPUS L"/openssl/") + name + L".p12";
}

std::string corpusContent(const wchar_t* name)
{
    return Core::IO::AtomicFile::read(corpusFile(name));
}

SecurityTest::SecurityTest()
{
    // It is the process's one, and knows what an earlier test listed.
    m_store->open(true);
}

String SecurityTest::keyStorePath()
{
    return Core::IO::FileSystem::combinePath(Core::Process::getCommonAppDataFolder(),
                                             L"Brimlow\\KeyStore\\KeyStore.p12");
}

std::vector<String> SecurityTest::listed()
{
    std::vector<String> names;
    Security::CertIterator iterator(*m_store);
    while (const auto certificate = iterator.getNext())
    {
        names.push_back(certificate->getSubjectCN());
    }
    return names;
}

std::vector<String> SecurityTest::stored()
{
    m_store->open(true);
    return listed();
}

String SecurityTest::fingerprint(unsigned index)
{
    Security::CertIterator iterator(*m_store);
    for (;; --index)
    {
        const auto certificate = iterator.getNext();
        if (index == 0)
        {
            return String::fromUtf8(certificate->getFingerprint());
        }
    }
}
