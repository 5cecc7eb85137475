#include "SecurityTest.h"
#include "checks.h"

#include <cstddef>
#include <random>
#include <string>

namespace
{

// The rules that checkPkcs12 holds any content to end the process where they are broken.

TEST(DamagedPkcs12, AFileThatWasCutOffAnywhereHoldsTheRules)
{
    const std::string whole = corpusContent(L"plain-without-mac");
    for (std::size_t size = 0; size < whole.size(); ++size)
    {
        checkPkcs12(whole.substr(0, size));
    }
}

TEST(DamagedPkcs12, AFileWithAnyByteChangedHoldsTheRules)
{
    // Nothing notices the change before the content is read.
    const std::string whole = corpusContent(L"smallest");
    std::mt19937 random(1);
    for (std::size_t at = 0; at < whole.size(); ++at)
    {
        for (const unsigned change : {1u, 1 + static_cast<unsigned>(random()) % 255})
        {
            std::string changed = whole;
            changed[at] = static_cast<char>(static_cast<unsigned char>(changed[at]) ^ change);
            checkPkcs12(changed);
        }
    }
}

TEST(DamagedPkcs12, AnEncryptedFileWithAnyByteChangedHoldsTheRules)
{
    const std::string whole = corpusContent(L"ec");
    for (std::size_t at = 0; at < whole.size(); ++at)
    {
        std::string changed = whole;
        changed[at] = static_cast<char>(changed[at] ^ 4);
        checkPkcs12(changed);
    }
}

} // namespace
