#include "SecurityTest.h"

#include "NoRandomNumbers.h"
#include "PrintTo.h"
#include "refusal.h"

#include "Pkcs12Writer.h"
#include "Request.h"
#include "SelfSigned.h"
#include "describe.h"
#include "privateKey.h"

namespace
{

using namespace Security;

// OpenSSL's reason stands behind it.
void expectRefusal(const wchar_t* what, const auto& operation)
{
    const Core::String message = refusal(operation);
    EXPECT_TRUE(message.startsWith(what)) << message.toUtf8();
    EXPECT_EQ(L'.', message.str().back()) << message.toUtf8();
}

TEST(OpensslRefusal, SaysWhatCannotBeDoneWithoutRandomNumbers)
{
    const NoRandomNumbers none;
    expectRefusal(L"A private key cannot be made: ", [] { generateKey(); });
    expectRefusal(L"No password can be chosen: ", [] { Secret::random(); });
    expectRefusal(L"A PKCS #12 file cannot be made: ", [] { Pkcs12Writer().finish(Secret(std::string("x")), 1); });
}

TEST(OpensslRefusal, SaysWhatCannotBeDoneWithAnEmptyKeyOrCertificate)
{
    const KeyPtr key(EVP_PKEY_new());
    const X509Ptr certificate(X509_new());
    const Subject subject(infoFor(L"server.example.com"));
    expectRefusal(L"A public key cannot be read: ", [&] { keyId(*key); });
    expectRefusal(L"A private key cannot be encrypted: ", [&] { encryptKey(*key, Secret(std::string("x")), 1); });
    expectRefusal(L"A certificate cannot be made: ", [&] { makeSelfSigned(*key, subject); });
    expectRefusal(L"A certificate request cannot be made: ", [&] { makeRequest(*key, subject); });
    expectRefusal(L"A certificate cannot be read: ", [&] { fingerprintOf(*certificate); });
}

} // namespace
