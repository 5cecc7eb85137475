#include "KeyStore.h"
#include "Pkcs12Fault.h"
#include "Pkcs12Writer.h"
#include "SecurityTest.h"
#include "SelfSigned.h"
#include "privateKey.h"

#include <gtest/gtest.h>

namespace Security
{
namespace
{

constexpr int keyRounds = 2;

Secret password()
{
    return Secret(std::string("password"));
}

// A PKCS #12 file with so many certificates, each with a key of its own by id.
std::string fileWith(std::size_t count)
{
    const KeyPtr key(EVP_EC_gen("P-256"));
    const X509Ptr certificate = makeSelfSigned(*key, Subject(infoFor(L"many.example.com")));
    const EncryptedPkcs8Ptr encrypted = encryptKey(*key, password(), keyRounds);
    Pkcs12Writer writer;
    for (std::size_t number = 0; number < count; ++number)
    {
        const std::string id = std::to_string(number);
        writer.addCertificate(*certificate, id);
        writer.addKey(*encrypted, id);
    }
    return writer.finish(password(), 1);
}

// The certificates and their integrity take one round each, to be read at all.
KeyDerivationBudget roundsForKeys(std::uint64_t keys)
{
    return KeyDerivationBudget(2 + keys * keyRounds);
}

TEST(KeyStore, HasAsManyKeysAsItLikesUntilTheyAreAskedFor)
{
    const KeyStore store(fileWith(20), password(), roundsForKeys(0));

    ASSERT_EQ(20, store.identities().size());
    EXPECT_EQ("0", store.identities().front().key.id);
    EXPECT_EQ("19", store.identities().back().key.id);
    EXPECT_TRUE(store.decryptKey(store.identities().back()));
}

TEST(KeyStore, PaysForAKeyWhenItIsAskedFor)
{
    const KeyStore store(fileWith(1), password());
    const KeyStore::Identity& identity = store.identities().front();

    EXPECT_TRUE(store.decryptKey(identity, KeyDerivationBudget(keyRounds)));
    EXPECT_THROW(store.decryptKey(identity, KeyDerivationBudget(keyRounds - 1)), Pkcs12Fault);
}

TEST(Pkcs12Reader, PaysForEachKeyWhenItIsAskedFor)
{
    const Secret secret = password();
    Pkcs12Reader reader(fileWith(3), secret, roundsForKeys(2));

    EXPECT_TRUE(reader.decrypt(reader.keys()[2]));
    EXPECT_TRUE(reader.decrypt(reader.keys()[0]));
    EXPECT_THROW(reader.decrypt(reader.keys()[1]), Pkcs12Fault);
}

} // namespace
} // namespace Security
