#include "KeyDerivationBudget.h"

#include "Pkcs12Fault.h"

#include <openssl/err.h>
#include <openssl/objects.h>

#include <string_view>

namespace Security
{

namespace
{

// What is derived from a password is no longer than this, in bytes.
constexpr std::uint64_t maxKeyLength = 64;

template <class T, auto Free>
Owned<T, Free> parametersOf(const X509_ALGOR& algorithm, const ASN1_ITEM* form)
{
    Owned<T, Free> parameters(static_cast<T*>(ASN1_TYPE_unpack_sequence(form, algorithm.parameter)));
    if (!parameters)
    {
        ERR_clear_error();
        throw Pkcs12Fault::unsupported;
    }
    return parameters;
}

std::uint64_t numberOf(const ASN1_INTEGER* integer)
{
    std::uint64_t number = 0;
    if (!ASN1_INTEGER_get_uint64(&number, integer))
    {
        // Negative, or beyond 64 bits.
        ERR_clear_error();
        throw Pkcs12Fault::tooSlow;
    }
    return number;
}

void checkKeyLength(const ASN1_INTEGER* length)
{
    if (length && numberOf(length) > maxKeyLength)
    {
        throw Pkcs12Fault::tooSlow;
    }
}

// The integrity check by PBKDF2, RFC 9579, which OpenSSL has no name for before 3.4.
bool isPbmac1(const X509_ALGOR& algorithm)
{
    char text[32] = "";
    OBJ_obj2txt(text, sizeof text, algorithm.algorithm, 1);
    return std::string_view(text) == "1.2.840.113549.1.5.14";
}

} // namespace

void KeyDerivationBudget::charge(const PKCS12& integrity)
{
    const X509_ALGOR* algorithm = nullptr;
    const ASN1_INTEGER* rounds = nullptr;
    PKCS12_get0_mac(nullptr, &algorithm, nullptr, &rounds, &integrity);
    if (!algorithm)
    {
        return;
    }
    charge(rounds);
    if (isPbmac1(*algorithm))
    {
        charge(*algorithm);
    }
}

void KeyDerivationBudget::charge(const X509_ALGOR& encryption)
{
    if (OBJ_obj2nid(encryption.algorithm) == NID_pbes2 || isPbmac1(encryption))
    {
        // Both begin with the algorithm of the derivation and go on with another one.
        const auto parameters = parametersOf<PBE2PARAM, PBE2PARAM_free>(encryption, ASN1_ITEM_rptr(PBE2PARAM));
        chargeDerivation(*parameters->keyfunc);
        return;
    }
    charge(parametersOf<PBEPARAM, PBEPARAM_free>(encryption, ASN1_ITEM_rptr(PBEPARAM))->iter);
}

void KeyDerivationBudget::chargeDerivation(const X509_ALGOR& derivation)
{
    switch (OBJ_obj2nid(derivation.algorithm))
    {
    case NID_id_pbkdf2:
    {
        const auto parameters = parametersOf<PBKDF2PARAM, PBKDF2PARAM_free>(derivation, ASN1_ITEM_rptr(PBKDF2PARAM));
        checkKeyLength(parameters->keylength);
        charge(parameters->iter);
        break;
    }
    case NID_id_scrypt:
    {
        const auto parameters =
            parametersOf<SCRYPT_PARAMS, SCRYPT_PARAMS_free>(derivation, ASN1_ITEM_rptr(SCRYPT_PARAMS));
        checkKeyLength(parameters->keyLength);
        // Each number alone may exhaust the budget, so the product of those that do not cannot overflow.
        std::uint64_t rounds = 1;
        for (const ASN1_INTEGER* factor :
             {parameters->costParameter, parameters->blockSize, parameters->parallelizationParameter})
        {
            const std::uint64_t number = numberOf(factor);
            if (number > usualRounds || rounds > usualRounds)
            {
                throw Pkcs12Fault::tooSlow;
            }
            rounds *= number;
        }
        charge(rounds);
        break;
    }
    default:
        throw Pkcs12Fault::unsupported;
    }
}

void KeyDerivationBudget::charge(const ASN1_INTEGER* rounds)
{
    // Left out, it is one.
    charge(rounds ? numberOf(rounds) : 1);
}

void KeyDerivationBudget::charge(std::uint64_t rounds)
{
    if (rounds > m_left)
    {
        throw Pkcs12Fault::tooSlow;
    }
    m_left -= rounds;
}

} // namespace Security
