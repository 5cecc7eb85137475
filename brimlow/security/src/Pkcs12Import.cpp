#include "Pkcs12Import.h"

#include "describe.h"
#include "privateKey.h"

#include <openssl/err.h>

#include <algorithm>
#include <utility>

namespace Security
{

namespace
{

// Every certificate is compared with every other one.
constexpr std::size_t maxCertificates = 1000;
// Real chains have three or four; certificates that issue one another in a circle would have no end.
constexpr std::size_t maxIssuers = 10;

} // namespace

Pkcs12Import::Pkcs12Import(std::string_view content, const Secret& password, KeyDerivationBudget budget)
    : m_file(content, password, budget)
{
    if (m_file.certificates().size() > maxCertificates)
    {
        throw Pkcs12Fault::tooSlow;
    }
    for (const Pkcs12Reader::KeyBag& bag : m_file.keys())
    {
        KeyPtr key = m_file.decrypt(bag);
        std::string id = keyId(*key);
        m_keys.emplace(std::move(id), std::move(key));
    }
}

Pkcs12Import::Result Pkcs12Import::into(KeyStore& store)
{
    Result result = m_file.certificates().empty() ? Result::noCertificate : Result::noKey;
    for (const Pkcs12Reader::CertificateBag& bag : m_file.certificates())
    {
        X509& certificate = *bag.certificate;
        EVP_PKEY* publicKey = X509_get0_pubkey(&certificate);
        if (!publicKey)
        {
            // Of a kind that OpenSSL does not know.
            ERR_clear_error();
            continue;
        }
        if (store.find(fingerprintOf(certificate)))
        {
            result = std::min(result, Result::allStoredAlready);
            continue;
        }
        const std::string id = keyId(*publicKey);
        const auto key = m_keys.find(id);
        const std::vector<X509*> issuers = issuersOf(certificate);
        if (key != m_keys.end() ? store.add(certificate, *key->second, issuers) : store.join(certificate, id, issuers))
        {
            result = Result::stored;
        }
    }
    return result;
}

std::vector<X509*> Pkcs12Import::issuersOf(X509& certificate)
{
    std::vector<X509*> issuers;
    X509* subject = &certificate;
    while (issuers.size() < maxIssuers && X509_check_issued(subject, subject) != X509_V_OK)
    {
        const auto issuer =
            std::ranges::find_if(m_file.certificates(), [&](const Pkcs12Reader::CertificateBag& bag)
                                 { return X509_check_issued(bag.certificate.get(), subject) == X509_V_OK; });
        if (issuer == m_file.certificates().end())
        {
            break;
        }
        subject = issuer->certificate.get();
        issuers.push_back(subject);
    }
    return issuers;
}

} // namespace Security
