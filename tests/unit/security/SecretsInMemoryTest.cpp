#include "SecurityTest.h"

#include "brimlow/security/PasswordException.h"

#include "KeyStore.h"
#include "Pkcs12Import.h"

#include <openssl/crypto.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace
{

// As a literal it is in memory that nobody writes to, which is not searched.
constexpr char password[] = "a password of some length, with an end that is nowhere else";
constexpr wchar_t widePassword[] = L"a password of some length, with an end that is nowhere else";
// Freed memory keeps what was in it, but for its first bytes.
constexpr std::string_view lookedFor = std::string_view(password).substr(32);

std::vector<std::pair<std::uint64_t, std::uint64_t>> writtenRegions()
{
    // The sanitizer's own records are larger, and no content of the program stands in them.
    constexpr std::uint64_t largest = 1ull << 32;
    std::vector<std::pair<std::uint64_t, std::uint64_t>> regions;
    std::ifstream maps("/proc/self/maps");
    std::string line;
    while (std::getline(maps, line))
    {
        unsigned long long begin = 0;
        unsigned long long end = 0;
        char rights[5] = "";
        if (std::sscanf(line.c_str(), "%llx-%llx %4s", &begin, &end, rights) == 3 && rights[1] == 'w' &&
            end - begin < largest)
        {
            regions.emplace_back(begin, end);
        }
    }
    return regions;
}

// Whether the bytes stand anywhere in the memory of this process, freed memory included.
bool isInMemory(std::string_view bytes)
{
    constexpr std::size_t pieceSize = 1 << 20;
    std::ifstream memory("/proc/self/mem", std::ios::binary);
    std::vector<char> piece(pieceSize + bytes.size());
    bool found = false;
    for (const auto& [begin, end] : writtenRegions())
    {
        for (std::uint64_t at = begin; at < end; at += pieceSize)
        {
            memory.clear();
            memory.seekg(static_cast<std::streamoff>(at));
            memory.read(piece.data(), static_cast<std::streamsize>(std::min<std::uint64_t>(piece.size(), end - at)));
            found =
                found || memmem(piece.data(), static_cast<std::size_t>(memory.gcount()), bytes.data(), bytes.size());
        }
    }
    // What was found must not be found here the next time.
    OPENSSL_cleanse(piece.data(), piece.size());
    return found;
}

// In UTF-8, as the library holds it. The big-endian UTF-16 that PKCS #12 derives its older keys from is OpenSSL's own;
// its derivation frees a copy of that unwiped.
using SecretsInMemory = SecurityTest;

TEST_F(SecretsInMemory, APasswordIsFoundWhereItIs)
{
    EXPECT_FALSE(isInMemory(lookedFor));
    std::string copy(password);
    EXPECT_TRUE(isInMemory(lookedFor));
    OPENSSL_cleanse(copy.data(), copy.size());
    EXPECT_FALSE(isInMemory(lookedFor));
}

TEST_F(SecretsInMemory, AWrongPasswordIsWiped)
{
    EXPECT_THROW(m_store->importPKCS12(corpusFile(L"3des-secret"), widePassword), Security::PasswordException);
    EXPECT_THROW(m_store->importPKCS12(corpusFile(L"without-mac-secret"), widePassword), Security::PasswordException);
    EXPECT_FALSE(isInMemory(lookedFor));
}

TEST_F(SecretsInMemory, ThePasswordOfAnImportIsWiped)
{
    {
        Security::KeyStore exported{Security::Secret(std::string(password))};
        const Security::Secret none;
        Security::Pkcs12Import(corpusContent(L"ec"), none).into(exported);
        m_folder.write(L"a.p12", exported.toFile());
    }
    m_store->importPKCS12(m_folder.path(L"a.p12"), widePassword);
    EXPECT_FALSE(isInMemory(lookedFor));
}

} // namespace
