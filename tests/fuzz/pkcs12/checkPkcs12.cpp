// Any bytes as a PKCS #12 file, with an empty password and, where that is the wrong one, with "secret": they are
// refused, or else their certificates get into a key store, whose file reads back as the same.

#include "KeyStore.h"
#include "Pkcs12Import.h"
#include "checks.h"
#include "describe.h"
#include "rules.h"

#include <string>

using Security::KeyDerivationBudget;
using Security::KeyStore;
using Security::Pkcs12Import;
using Security::Secret;

namespace
{

// So that many files can be tried. Files of the usual number of rounds are in the unit tests.
constexpr std::uint64_t fewRounds = 100;

Security::Certificate::Fields fieldsOf(const KeyStore::Identity& identity)
{
    return Security::describe(*identity.certificate);
}

// Whether the file needs another password.
bool checkPassword(std::string_view content, const char* password)
{
    KeyStore store(Secret(std::string("store")), 1);
    try
    {
        const Secret secret{std::string(password)};
        const bool stored =
            Pkcs12Import(content, secret, KeyDerivationBudget(fewRounds)).into(store) == Pkcs12Import::Result::stored;
        require(stored == !store.identities().empty(), "what is said to be stored is stored");
    }
    catch (Security::Pkcs12Fault fault)
    {
        require(store.identities().empty(), "a file is taken whole or not at all");
        return fault == Security::Pkcs12Fault::wrongPassword;
    }
    if (store.identities().empty())
    {
        return false;
    }
    const KeyStore readBack(store.toFile(), Secret(std::string("store")));
    require(readBack.identities().size() == store.identities().size(), "every certificate comes back");
    for (std::size_t at = 0; at < store.identities().size(); ++at)
    {
        const KeyStore::Identity& written = store.identities()[at];
        const KeyStore::Identity& read = readBack.identities()[at];
        require(fieldsOf(written).fingerprint == fieldsOf(read).fingerprint, "a certificate comes back as it was");
        require(written.issuers.size() == read.issuers.size(), "the issuers come back");
        require(X509_check_private_key(read.certificate.get(), readBack.decryptKey(read).get()) == 1,
                "the key comes back and fits");
    }
    return false;
}

} // namespace

void checkPkcs12(std::string_view content)
{
    if (checkPassword(content, ""))
    {
        checkPassword(content, "secret");
    }
}
