#include "KeyDerivationBudget.h"
#include "Pkcs12Fault.h"
#include "Pkcs12Reader.h"
#include "openssl.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <optional>

using Security::KeyDerivationBudget;
using Security::Owned;
using Security::Pkcs12Fault;

namespace
{

using AlgorithmPtr = Owned<X509_ALGOR, X509_ALGOR_free>;

constexpr int most = 3'000'000;
unsigned char salt[8] = {1, 2, 3, 4, 5, 6, 7, 8};

AlgorithmPtr pbkdf2(int rounds, int keyLength = -1)
{
    AlgorithmPtr algorithm(PKCS5_pbe2_set(EVP_aes_256_cbc(), rounds, salt, sizeof salt));
    if (keyLength >= 0)
    {
        const Owned<PBE2PARAM, PBE2PARAM_free> parameters(
            static_cast<PBE2PARAM*>(ASN1_TYPE_unpack_sequence(ASN1_ITEM_rptr(PBE2PARAM), algorithm->parameter)));
        X509_ALGOR_free(parameters->keyfunc);
        parameters->keyfunc = PKCS5_pbkdf2_set(rounds, salt, sizeof salt, NID_hmacWithSHA256, keyLength);
        ASN1_TYPE_pack_sequence(ASN1_ITEM_rptr(PBE2PARAM), parameters.get(), &algorithm->parameter);
    }
    return algorithm;
}

AlgorithmPtr pbe(int rounds)
{
    return AlgorithmPtr(PKCS5_pbe_set(NID_pbe_WithSHA1And40BitRC2_CBC, rounds, salt, sizeof salt));
}

// OpenSSL refuses to make dangerous parameters, so they are put in afterwards.
AlgorithmPtr scrypt(std::uint64_t cost, std::uint64_t blockSize, std::uint64_t parallel)
{
    AlgorithmPtr algorithm(PKCS5_pbe2_set_scrypt(EVP_aes_256_cbc(), salt, sizeof salt, nullptr, 2, 1, 1));
    const Owned<PBE2PARAM, PBE2PARAM_free> outer(
        static_cast<PBE2PARAM*>(ASN1_TYPE_unpack_sequence(ASN1_ITEM_rptr(PBE2PARAM), algorithm->parameter)));
    const Owned<SCRYPT_PARAMS, SCRYPT_PARAMS_free> inner(static_cast<SCRYPT_PARAMS*>(
        ASN1_TYPE_unpack_sequence(ASN1_ITEM_rptr(SCRYPT_PARAMS), outer->keyfunc->parameter)));
    ASN1_INTEGER_set_uint64(inner->costParameter, cost);
    ASN1_INTEGER_set_uint64(inner->blockSize, blockSize);
    ASN1_INTEGER_set_uint64(inner->parallelizationParameter, parallel);
    ASN1_TYPE_pack_sequence(ASN1_ITEM_rptr(SCRYPT_PARAMS), inner.get(), &outer->keyfunc->parameter);
    ASN1_TYPE_pack_sequence(ASN1_ITEM_rptr(PBE2PARAM), outer.get(), &algorithm->parameter);
    return algorithm;
}

// The algorithm under another name.
AlgorithmPtr renamed(AlgorithmPtr algorithm, const char* id)
{
    ASN1_OBJECT_free(algorithm->algorithm);
    algorithm->algorithm = OBJ_txt2obj(id, 1);
    return algorithm;
}

// Nothing: accepted.
std::optional<Pkcs12Fault> faultOf(const X509_ALGOR& algorithm)
{
    try
    {
        KeyDerivationBudget().charge(algorithm);
        return std::nullopt;
    }
    catch (Pkcs12Fault fault)
    {
        return fault;
    }
}

TEST(KeyDerivationBudget, EndsAtThreeMillionRoundsInEveryForm)
{
    EXPECT_EQ(std::nullopt, faultOf(*pbkdf2(most)));
    EXPECT_EQ(Pkcs12Fault::tooSlow, faultOf(*pbkdf2(most + 1)));
    EXPECT_EQ(Pkcs12Fault::tooSlow, faultOf(*pbkdf2(std::numeric_limits<int>::max())));
    EXPECT_EQ(std::nullopt, faultOf(*pbe(most)));
    EXPECT_EQ(Pkcs12Fault::tooSlow, faultOf(*pbe(most + 1)));
    EXPECT_EQ(std::nullopt, faultOf(*scrypt(1 << 15, 8, 1)));
    EXPECT_EQ(std::nullopt, faultOf(*scrypt(1'000'000, 3, 1)));
    EXPECT_EQ(Pkcs12Fault::tooSlow, faultOf(*scrypt(1'000'000, 3, 2)));
}

TEST(KeyDerivationBudget, CountsAllPartsTogether)
{
    KeyDerivationBudget budget;
    budget.charge(*pbkdf2(1'000'000));
    budget.charge(*pbe(1'000'000));
    budget.charge(*scrypt(1000, 10, 100));
    EXPECT_THROW(budget.charge(*pbe(1)), Pkcs12Fault);
}

// A key that nobody can decrypt, and that says that it takes as many rounds.
PKCS12_SAFEBAG* bagOf(const AlgorithmPtr& algorithm)
{
    Security::EncryptedPkcs8Ptr key(X509_SIG_new());
    X509_ALGOR* place = nullptr;
    X509_SIG_getm(key.get(), &place, nullptr);
    X509_ALGOR_copy(place, algorithm.get());
    return PKCS12_SAFEBAG_create0_pkcs8(key.release());
}

Pkcs12Fault faultOfKey(Security::Pkcs12Reader& file, std::size_t index)
{
    try
    {
        file.decrypt(file.keys()[index]);
    }
    catch (Pkcs12Fault fault)
    {
        return fault;
    }
    ADD_FAILURE() << "a key that nobody can decrypt";
    return Pkcs12Fault::otherFormat;
}

TEST(KeyDerivationBudget, IsOneForAllPartsOfAFile)
{
    for (const int rounds : {1500, 1501})
    {
        const Security::BagsPtr bags(sk_PKCS12_SAFEBAG_new_null());
        sk_PKCS12_SAFEBAG_push(bags.get(), bagOf(pbkdf2(1500)));
        sk_PKCS12_SAFEBAG_push(bags.get(), bagOf(pbe(rounds)));
        STACK_OF(PKCS7)* list = nullptr;
        PKCS12_add_safe(&list, bags.get(), -1, 1, nullptr);
        const Security::SafesPtr safes(list);
        const Security::Pkcs12Ptr file(PKCS12_add_safes(safes.get(), 0));
        unsigned char* bytes = nullptr;
        const int size = i2d_PKCS12(file.get(), &bytes);
        const Security::MemoryPtr owner(bytes);
        const Security::Secret none;
        Security::Pkcs12Reader reader({reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(size)}, none,
                                      KeyDerivationBudget(3000));
        EXPECT_NE(Pkcs12Fault::tooSlow, faultOfKey(reader, 0));
        EXPECT_EQ(rounds == 1501, faultOfKey(reader, 1) == Pkcs12Fault::tooSlow);
    }
}

TEST(KeyDerivationBudget, NoNumberIsSoLargeThatItLooksSmall)
{
    constexpr std::uint64_t huge = std::numeric_limits<std::uint64_t>::max();
    EXPECT_EQ(Pkcs12Fault::tooSlow, faultOf(*scrypt(huge, huge, huge)));
    EXPECT_EQ(Pkcs12Fault::tooSlow, faultOf(*scrypt(1ull << 32, 1ull << 32, 1)));
    EXPECT_EQ(Pkcs12Fault::tooSlow, faultOf(*scrypt(1, 1ull << 63, 2)));
    EXPECT_EQ(Pkcs12Fault::tooSlow, faultOf(*scrypt(2'900'000, 2'900'000, 2'900'000)));

    // More than 64 bits, and less than nothing.
    for (const char* number : {"10000000000000001", "-1", "-10000000000000001"})
    {
        AlgorithmPtr algorithm = pbe(1);
        const Owned<PBEPARAM, PBEPARAM_free> parameters(
            static_cast<PBEPARAM*>(ASN1_TYPE_unpack_sequence(ASN1_ITEM_rptr(PBEPARAM), algorithm->parameter)));
        BIGNUM* value = nullptr;
        BN_hex2bn(&value, number);
        BN_to_ASN1_INTEGER(value, parameters->iter);
        BN_free(value);
        ASN1_TYPE_pack_sequence(ASN1_ITEM_rptr(PBEPARAM), parameters.get(), &algorithm->parameter);
        EXPECT_EQ(Pkcs12Fault::tooSlow, faultOf(*algorithm)) << number;
    }
}

TEST(KeyDerivationBudget, AKeyMayHave64Bytes)
{
    EXPECT_EQ(std::nullopt, faultOf(*pbkdf2(1000, 64)));
    EXPECT_EQ(Pkcs12Fault::tooSlow, faultOf(*pbkdf2(1000, 65)));
}

TEST(KeyDerivationBudget, TheIntegrityCheckByPbkdf2CountsToo)
{
    const char pbmac1[] = "1.2.840.113549.1.5.14";
    EXPECT_EQ(std::nullopt, faultOf(*renamed(pbkdf2(most), pbmac1)));
    EXPECT_EQ(Pkcs12Fault::tooSlow, faultOf(*renamed(pbkdf2(most + 1), pbmac1)));
}

TEST(KeyDerivationBudget, WhatIsNotKnownIsNotTried)
{
    EXPECT_EQ(Pkcs12Fault::unsupported, faultOf(*renamed(pbkdf2(1), "1.2.3.4")));
    AlgorithmPtr bare(X509_ALGOR_new());
    X509_ALGOR_set0(bare.get(), OBJ_nid2obj(NID_pbes2), V_ASN1_UNDEF, nullptr);
    EXPECT_EQ(Pkcs12Fault::unsupported, faultOf(*bare));
    X509_ALGOR_set0(bare.get(), OBJ_nid2obj(NID_pbe_WithSHA1And3_Key_TripleDES_CBC), V_ASN1_NULL, nullptr);
    EXPECT_EQ(Pkcs12Fault::unsupported, faultOf(*bare));
}

} // namespace
