#include "Pkcs12Reader.h"

#include "algorithms.h"
#include "failure.h"
#include "privateKey.h"

#include <openssl/err.h>

namespace Security
{

namespace
{

// Whether OpenSSL failed because of an algorithm that it does not have. Empties its list of errors.
bool wasUnsupported()
{
    bool unsupported = false;
    while (const unsigned long error = ERR_get_error())
    {
        const int reason = ERR_GET_REASON(error);
        unsupported = unsupported || reason == ERR_R_UNSUPPORTED ||
                      (ERR_GET_LIB(error) == ERR_LIB_PKCS12 && reason == PKCS12_R_UNKNOWN_DIGEST_ALGORITHM) ||
                      (ERR_GET_LIB(error) == ERR_LIB_EVP &&
                       (reason == EVP_R_UNKNOWN_PBE_ALGORITHM || reason == EVP_R_UNSUPPORTED_CIPHER ||
                        reason == EVP_R_UNSUPPORTED_PRF || reason == EVP_R_UNSUPPORTED_KEY_DERIVATION_FUNCTION));
    }
    return unsupported;
}

Pkcs8Ptr copyOf(const PKCS8_PRIV_KEY_INFO& key)
{
    return Pkcs8Ptr(
        static_cast<PKCS8_PRIV_KEY_INFO*>(checkMemory(ASN1_item_dup(ASN1_ITEM_rptr(PKCS8_PRIV_KEY_INFO), &key))));
}

std::string localKeyIdOf(const PKCS12_SAFEBAG* bag)
{
    const ASN1_TYPE* id = PKCS12_SAFEBAG_get0_attr(bag, NID_localKeyID);
    if (!id || id->type != V_ASN1_OCTET_STRING)
    {
        return {};
    }
    return {reinterpret_cast<const char*>(ASN1_STRING_get0_data(id->value.octet_string)),
            static_cast<std::size_t>(ASN1_STRING_length(id->value.octet_string))};
}

} // namespace

Pkcs12Reader::Pkcs12Reader(std::string_view content, const Secret& password, KeyDerivationBudget budget)
    : m_budget(budget), m_passwords{password.get()}, m_passwordLength(password.length())
{
    loadAlgorithms();
    ERR_clear_error();
    if (password.empty())
    {
        // An empty password and none at all are two things to PKCS #12, and programs differ in which one they write.
        m_passwords.push_back(nullptr);
    }
    const auto* bytes = reinterpret_cast<const unsigned char*>(content.data());
    const Pkcs12Ptr file(d2i_PKCS12(nullptr, &bytes, static_cast<long>(content.size())));
    if (!file)
    {
        ERR_clear_error();
        throw Pkcs12Fault::otherFormat;
    }
    verify(*file);
    const SafesPtr safes(PKCS12_unpack_authsafes(file.get()));
    if (!safes)
    {
        ERR_clear_error();
        throw Pkcs12Fault::damaged;
    }
    for (int at = 0; at < sk_PKCS7_num(safes.get()); ++at)
    {
        readSafe(*sk_PKCS7_value(safes.get(), at));
    }
}

void Pkcs12Reader::verify(PKCS12& file)
{
    m_budget.charge(file);
    if (!PKCS12_mac_present(&file))
    {
        return;
    }
    for (const char* password : m_passwords)
    {
        ERR_clear_error();
        if (PKCS12_verify_mac(&file, password, m_passwordLength))
        {
            m_passwords = {password};
            m_verified = true;
            return;
        }
    }
    // A value that does not match is no error to OpenSSL, unlike one that cannot be computed.
    if (ERR_peek_error() == 0)
    {
        throw Pkcs12Fault::wrongPassword;
    }
    throw wasUnsupported() ? Pkcs12Fault::unsupported : Pkcs12Fault::damaged;
}

// What an attempt to decrypt makes with the password, or with one of the two that an empty one may be.
template <class Attempt>
auto Pkcs12Reader::withPassword(Attempt attempt) const
{
    for (const char* password : m_passwords)
    {
        ERR_clear_error();
        if (auto result = attempt(password))
        {
            return result;
        }
    }
    if (wasUnsupported())
    {
        throw Pkcs12Fault::unsupported;
    }
    throw m_verified ? Pkcs12Fault::damaged : Pkcs12Fault::wrongPassword;
}

void Pkcs12Reader::readSafe(PKCS7& safe)
{
    if (PKCS7_type_is_data(&safe) && safe.d.data)
    {
        readBags(BagsPtr(PKCS12_unpack_p7data(&safe)).get());
    }
    else if (PKCS7_type_is_encrypted(&safe) && safe.d.encrypted && safe.d.encrypted->enc_data &&
             safe.d.encrypted->enc_data->algorithm && safe.d.encrypted->enc_data->enc_data)
    {
        m_budget.charge(*safe.d.encrypted->enc_data->algorithm);
        readBags(withPassword([&](const char* password)
                              { return BagsPtr(PKCS12_unpack_p7encdata(&safe, password, m_passwordLength)); })
                     .get());
    }
    else
    {
        // Encrypted for the owner of a certificate, or cut off.
        throw Pkcs12Fault::unsupported;
    }
}

void Pkcs12Reader::readBags(STACK_OF(PKCS12_SAFEBAG) * bags)
{
    if (!bags)
    {
        ERR_clear_error();
        throw Pkcs12Fault::damaged;
    }
    for (int at = 0; at < sk_PKCS12_SAFEBAG_num(bags); ++at)
    {
        const PKCS12_SAFEBAG* bag = sk_PKCS12_SAFEBAG_value(bags, at);
        switch (PKCS12_SAFEBAG_get_nid(bag))
        {
        case NID_keyBag:
            m_keys.push_back({nullptr, copyOf(*PKCS12_SAFEBAG_get0_p8inf(bag)), localKeyIdOf(bag)});
            break;
        case NID_pkcs8ShroudedKeyBag:
            m_keys.push_back({Security::copyOf(*PKCS12_SAFEBAG_get0_pkcs8(bag)), nullptr, localKeyIdOf(bag)});
            break;
        case NID_certBag:
            if (PKCS12_SAFEBAG_get_bag_nid(bag) == NID_x509Certificate)
            {
                m_certificates.push_back({X509Ptr(PKCS12_SAFEBAG_get1_cert(bag)), localKeyIdOf(bag)});
                if (!m_certificates.back().certificate)
                {
                    ERR_clear_error();
                    throw Pkcs12Fault::damaged;
                }
            }
            break;
        case NID_safeContentsBag:
            readBags(const_cast<STACK_OF(PKCS12_SAFEBAG)*>(PKCS12_SAFEBAG_get0_safes(bag)));
            break;
        default:
            // Revocation lists and secrets are of no use here.
            break;
        }
    }
}

KeyPtr Pkcs12Reader::decrypt(const KeyBag& bag)
{
    if (bag.encrypted)
    {
        const X509_ALGOR* algorithm = nullptr;
        X509_SIG_get0(bag.encrypted.get(), &algorithm, nullptr);
        m_budget.charge(*algorithm);
    }
    const auto decryptWith = [&](const char* password)
    { return Pkcs8Ptr(PKCS8_decrypt(bag.encrypted.get(), password, m_passwordLength)); };
    const Pkcs8Ptr decrypted = bag.encrypted ? withPassword(decryptWith) : nullptr;
    return readKey(decrypted ? *decrypted : *bag.plain);
}

} // namespace Security
