#include "algorithms.h"

#include <openssl/crypto.h>
#include <openssl/err.h>
#include <openssl/provider.h>

#include <memory>

namespace Security
{

void loadAlgorithms()
{
    struct Unload
    {
        void operator()(OSSL_PROVIDER* provider) const noexcept { OSSL_PROVIDER_unload(provider); }
    };
    using Provider = std::unique_ptr<OSSL_PROVIDER, Unload>;
    // When the program or library goes, what was registered first is tidied up last: OpenSSL itself has to come behind
    // its providers. It registers itself with the first option that is asked for, and loading a provider asks for none.
    OPENSSL_init_crypto(OPENSSL_INIT_LOAD_CRYPTO_STRINGS, nullptr);
    // Loading one by hand ends the automatic loading of the other.
    static const Provider usual(OSSL_PROVIDER_load(nullptr, "default"));
    static const Provider legacy(OSSL_PROVIDER_load(nullptr, "legacy"));
    ERR_clear_error();
}

} // namespace Security
