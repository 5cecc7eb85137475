// Any bytes as a key store, its password before them in a line of its own: they are refused, or else everything in it
// comes back from the file that it is saved as.

#include "KeyStore.h"
#include "checks.h"
#include "describe.h"
#include "rules.h"

#include <algorithm>
#include <string>

using Security::KeyDerivationBudget;
using Security::KeyStore;
using Security::Secret;

namespace
{

constexpr std::uint64_t fewRounds = 100;

// A key is only decrypted when it is needed; damage in it counts then.
bool decrypts(const KeyStore& store, const KeyStore::Identity& identity)
{
    try
    {
        return store.decryptKey(identity) != nullptr;
    }
    catch (Security::Pkcs12Fault)
    {
        return false;
    }
}

void requireSame(const KeyStore& written, const KeyStore& read)
{
    require(written.identities().size() == read.identities().size(), "every certificate comes back");
    for (std::size_t at = 0; at < read.identities().size(); ++at)
    {
        const KeyStore::Identity& was = written.identities()[at];
        const KeyStore::Identity& is = read.identities()[at];
        require(Security::fingerprintOf(*was.certificate) == Security::fingerprintOf(*is.certificate),
                "a certificate comes back as it was");
        require(was.issuers.size() == is.issuers.size(), "the issuers come back");
        require(decrypts(written, was) == decrypts(read, is), "a key comes back as it was");
    }
}

} // namespace

void checkKeyStore(std::string_view content)
{
    const std::size_t lineEnd = std::min(content.find('\n'), content.size());
    const std::string password(content.substr(0, lineEnd));
    content.remove_prefix(std::min(lineEnd + 1, content.size()));
    try
    {
        KeyStore store(content, Secret(std::string(password)), KeyDerivationBudget(fewRounds));
        requireSame(store, KeyStore(store.toFile(), Secret(std::string(password))));
        if (!store.identities().empty())
        {
            const std::string fingerprint = Security::fingerprintOf(*store.identities().front().certificate);
            require(store.remove(fingerprint) && !store.find(fingerprint), "a certificate can be removed");
        }
    }
    catch (Security::Pkcs12Fault)
    {
        // Refused.
    }
}
