#include "Pkcs12Writer.h"

#include "failure.h"
#include "privateKey.h"

namespace Security
{

namespace
{

constexpr wchar_t fileFailure[] = L"A PKCS #12 file cannot be made";

void push(const BagsPtr& bags, PKCS12_SAFEBAG* newBag, const std::string& localKeyId)
{
    Owned<PKCS12_SAFEBAG, PKCS12_SAFEBAG_free> bag(check(newBag, fileFailure));
    if (!localKeyId.empty())
    {
        auto* id = reinterpret_cast<unsigned char*>(const_cast<char*>(localKeyId.data()));
        check(PKCS12_add_localkeyid(bag.get(), id, static_cast<int>(localKeyId.size())), fileFailure);
    }
    check(sk_PKCS12_SAFEBAG_push(bags.get(), bag.get()), fileFailure);
    static_cast<void>(bag.release());
}

// encryption: the cipher; -1 for none.
void addSafe(SafesPtr& safes, const BagsPtr& bags, int encryption, int rounds, const char* password)
{
    auto* list = safes.release();
    const int added = PKCS12_add_safe(&list, bags.get(), encryption, rounds, password);
    safes.reset(list);
    check(added, fileFailure);
}

} // namespace

Pkcs12Writer::Pkcs12Writer()
    : m_certificates(check(sk_PKCS12_SAFEBAG_new_null(), fileFailure)),
      m_keys(check(sk_PKCS12_SAFEBAG_new_null(), fileFailure))
{
}

void Pkcs12Writer::addCertificate(X509& certificate, const std::string& localKeyId)
{
    push(m_certificates, PKCS12_SAFEBAG_create_cert(&certificate), localKeyId);
}

void Pkcs12Writer::addKey(const X509_SIG& encryptedKey, const std::string& localKeyId)
{
    EncryptedPkcs8Ptr key = copyOf(encryptedKey);
    PKCS12_SAFEBAG* bag = check(PKCS12_SAFEBAG_create0_pkcs8(key.get()), fileFailure);
    static_cast<void>(key.release());
    push(m_keys, bag, localKeyId);
}

std::string Pkcs12Writer::finish(const Secret& password, int rounds) const
{
    SafesPtr safes;
    addSafe(safes, m_certificates, NID_aes_256_cbc, rounds, password.get());
    addSafe(safes, m_keys, -1, rounds, nullptr);
    const Pkcs12Ptr file(check(PKCS12_add_safes(safes.get(), 0), fileFailure));
    check(PKCS12_set_mac(file.get(), password.get(), password.length(), nullptr, 0, rounds, EVP_sha256()), fileFailure);
    unsigned char* bytes = nullptr;
    const int size = check(i2d_PKCS12(file.get(), &bytes), fileFailure);
    const MemoryPtr owner(bytes);
    return {reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(size)};
}

} // namespace Security
