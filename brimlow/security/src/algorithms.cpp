#include "algorithms.h"

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
    // Loading one by hand ends the automatic loading of the other.
    static const Provider usual(OSSL_PROVIDER_load(nullptr, "default"));
    static const Provider legacy(OSSL_PROVIDER_load(nullptr, "legacy"));
    ERR_clear_error();
}

} // namespace Security
