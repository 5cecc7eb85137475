#include "PasswordHash.h"
#include "NoRandomNumbers.h"
#include "PrintTo.h"
#include "brimlow/tessaro/User.h"
#include "refusal.h"

#include <array>
#include <gtest/gtest.h>
#include <openssl/evp.h>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace
{

using namespace Tessaro;

std::span<const unsigned char> bytes(std::string_view text)
{
    return {reinterpret_cast<const unsigned char*>(text.data()), text.size()};
}

// The vectors of RFC 7914, section 11, of which PBKDF2 with 32 bytes gives the first half.
TEST(PasswordHashTest, IsPbkdf2WithHmacSha256)
{
    EXPECT_EQ(L"$pbkdf2-sha256$i=1$c2FsdA$VawEblbjCJ/sFpHCJUS2BflBhSFt3gRl5oudV8INrLw",
              PasswordHash(L"passwd", bytes("salt"), 1).text());
    EXPECT_EQ(L"$pbkdf2-sha256$i=80000$TmFDbA$TdzY9guYviGDDO5e8icB+WQaRBjQTAQUrv8Ih2s0q1Y",
              PasswordHash(L"Password", bytes("NaCl"), 80'000).text());
}

// openssl kdf -keylen 32 -kdfopt digest:SHA256 -kdfopt hexpass:c3a4f09f9880 -kdfopt hexsalt:000102 -kdfopt iter:2
// PBKDF2
TEST(PasswordHashTest, IsMadeOfThePasswordsUtf8)
{
    EXPECT_EQ(L"$pbkdf2-sha256$i=2$AAEC$cDoz2hfX/s5u3t4LowSdiotjU9wKUPyd98uD3WJFB5s",
              PasswordHash(L"\u00E4\U0001F600", bytes({"\0\1\2", 3}), 2).text());
}

TEST(PasswordHashTest, HasSixteenBytesOfSaltAndTodaysCost)
{
    const Core::String text = PasswordHash(L"secret").text();
    const std::vector<Core::String> parts = text.split(L"$");
    ASSERT_EQ(5u, parts.size());
    EXPECT_EQ(L"", parts[0]);
    EXPECT_EQ(L"pbkdf2-sha256", parts[1]);
    EXPECT_EQ(L"i=600000", parts[2]);
    EXPECT_EQ(43u, parts[4].length());

    // 22 characters and the padding stand for 16 bytes; two more are decoded of the padding.
    ASSERT_EQ(22u, parts[3].length());
    const std::string encoded = parts[3].toUtf8() + "==";
    std::array<unsigned char, 18> salt{};
    ASSERT_EQ(18, EVP_DecodeBlock(salt.data(), reinterpret_cast<const unsigned char*>(encoded.data()), 24));
    EXPECT_EQ(text, PasswordHash(L"secret", std::span(salt).first(16), 600'000).text());
}

TEST(PasswordHashTest, HasASaltOfItsOwnEachTime)
{
    EXPECT_NE(PasswordHash(L"secret").text(), PasswordHash(L"secret").text());
}

TEST(PasswordHashTest, IsRefusedWithoutARound)
{
    EXPECT_EQ(L"The password cannot be encoded: the cryptographic library refuses. Please try again.",
              refusal([] { PasswordHash(L"secret", bytes("salt"), 0); }));
}

TEST(PasswordHashTest, IsRefusedWithoutRandomNumbers)
{
    const NoRandomNumbers none;
    User user;
    EXPECT_EQ(L"The password cannot be encoded: the system has no random numbers. Please try again.",
              refusal([&] { user.setPasswordEncoded(L"secret"); }));
    EXPECT_EQ(L"", user.getPassword());
}

} // namespace
