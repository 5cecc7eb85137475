#pragma once

#include "CommonAppData.h"
#include "TemporaryFolder.h"

#include "brimlow/security/CertStore.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

// Nine values that a certificate can hold.
Security::CertificateInfo infoFor(const wchar_t* commonName);

// A file that the openssl command made: the path of corpus/openssl/<name>.p12, and its content.
Core::String corpusFile(const wchar_t* name);
std::string corpusContent(const wchar_t* name);

// A test with a key store of its own, empty at first.
class SecurityTest : public testing::Test
{
  public:
    static Core::String keyStorePath();

  protected:
    SecurityTest();

    // The certificates that the store last read, or reads now.
    std::vector<Core::String> listed();
    std::vector<Core::String> stored();
    // The fingerprint of a listed certificate.
    Core::String fingerprint(unsigned index);

    CommonAppData m_data;
    TemporaryFolder m_folder;
    Security::SmartPtr<Security::CertStore> m_store = Security::CertStore::getCertStoreInstance();
};
