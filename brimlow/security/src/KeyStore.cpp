#include "KeyStore.h"

#include "Pkcs12Writer.h"
#include "describe.h"
#include "failure.h"
#include "privateKey.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace Security
{

namespace
{

X509Ptr copyOf(X509& certificate)
{
    return X509Ptr(checkMemory(X509_dup(&certificate)));
}

std::vector<X509Ptr> copiesOf(const std::vector<X509*>& certificates)
{
    std::vector<X509Ptr> copies;
    for (X509* certificate : certificates)
    {
        copies.push_back(copyOf(*certificate));
    }
    return copies;
}

} // namespace

KeyStore::KeyStore(Secret password, int rounds) : m_password(std::move(password)), m_rounds(rounds) {}

KeyStore::KeyStore(std::string_view file, Secret password, KeyDerivationBudget budget) : m_password(std::move(password))
{
    Pkcs12Reader reader(file, m_password, budget);
    for (Pkcs12Reader::KeyBag& bag : reader.keys())
    {
        if (!bag.encrypted)
        {
            throw Pkcs12Fault::damaged;
        }
        m_waitingKeys.push_back({std::move(bag.localKeyId), std::move(bag.encrypted)});
    }
    // Several certificates of one key have a copy of it each.
    std::unordered_multimap<std::string, StoredKey*> keys;
    for (StoredKey& key : m_waitingKeys)
    {
        keys.emplace(key.id, &key);
    }
    for (Pkcs12Reader::CertificateBag& bag : reader.certificates())
    {
        if (!bag.localKeyId.empty())
        {
            const auto key = keys.find(bag.localKeyId);
            if (key == keys.end())
            {
                throw Pkcs12Fault::damaged;
            }
            m_identities.push_back({std::move(bag.certificate), std::move(*key->second), {}});
            keys.erase(key);
        }
        else if (!m_identities.empty())
        {
            m_identities.back().issuers.push_back(std::move(bag.certificate));
        }
    }
    std::erase_if(m_waitingKeys, [](const StoredKey& key) { return !key.encrypted; });
}

std::string KeyStore::toFile() const
{
    Pkcs12Writer writer;
    for (const Identity& identity : m_identities)
    {
        writer.addCertificate(*identity.certificate, identity.key.id);
        writer.addKey(*identity.key.encrypted, identity.key.id);
        for (const X509Ptr& issuer : identity.issuers)
        {
            writer.addCertificate(*issuer);
        }
    }
    for (const StoredKey& key : m_waitingKeys)
    {
        writer.addKey(*key.encrypted, key.id);
    }
    return writer.finish(m_password, m_rounds);
}

const KeyStore::Identity* KeyStore::find(const std::string& fingerprint) const
{
    const auto found = std::ranges::find_if(m_identities, [&](const Identity& identity)
                                            { return fingerprintOf(*identity.certificate) == fingerprint; });
    return found == m_identities.end() ? nullptr : &*found;
}

KeyPtr KeyStore::decryptKey(const Identity& identity, KeyDerivationBudget budget) const
{
    const X509_ALGOR* encryption = nullptr;
    X509_SIG_get0(identity.key.encrypted.get(), &encryption, nullptr);
    budget.charge(*encryption);
    return Security::decryptKey(*identity.key.encrypted, m_password);
}

bool KeyStore::remove(const std::string& fingerprint)
{
    return std::erase_if(m_identities, [&](const Identity& identity)
                         { return fingerprintOf(*identity.certificate) == fingerprint; }) > 0;
}

bool KeyStore::add(X509& certificate, EVP_PKEY& key, const std::vector<X509*>& issuers)
{
    if (find(fingerprintOf(certificate)))
    {
        return false;
    }
    std::string id = keyId(key);
    std::erase_if(m_waitingKeys, [&](const StoredKey& waiting) { return waiting.id == id; });
    m_identities.push_back(
        {copyOf(certificate), {std::move(id), encryptKey(key, m_password, m_rounds)}, copiesOf(issuers)});
    return true;
}

void KeyStore::addWaitingKey(EVP_PKEY& key)
{
    m_waitingKeys.push_back({keyId(key), encryptKey(key, m_password, m_rounds)});
}

bool KeyStore::join(X509& certificate, const std::string& keyId, const std::vector<X509*>& issuers)
{
    if (find(fingerprintOf(certificate)))
    {
        return false;
    }
    StoredKey key{keyId, nullptr};
    if (const auto waiting = findWaiting(keyId); waiting != m_waitingKeys.end())
    {
        key = std::move(*waiting);
        m_waitingKeys.erase(waiting);
    }
    else
    {
        const auto used = std::ranges::find(
            m_identities, keyId, [](const Identity& identity) -> const std::string& { return identity.key.id; });
        if (used == m_identities.end())
        {
            return false;
        }
        key.encrypted = copyOf(*used->key.encrypted);
    }
    m_identities.push_back({copyOf(certificate), std::move(key), copiesOf(issuers)});
    return true;
}

std::vector<KeyStore::StoredKey>::iterator KeyStore::findWaiting(const std::string& id)
{
    return std::ranges::find(m_waitingKeys, id, &StoredKey::id);
}

} // namespace Security
