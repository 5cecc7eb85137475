#include "Request.h"

#include "failure.h"

#include <openssl/pem.h>

namespace Security
{

std::string makeRequest(EVP_PKEY& key, const Subject& subject)
{
    constexpr wchar_t failure[] = L"A certificate request cannot be made";
    const RequestPtr request(check(X509_REQ_new(), failure));
    check(X509_REQ_set_version(request.get(), X509_REQ_VERSION_1), failure);
    check(X509_REQ_set_subject_name(request.get(), subject.name()), failure);
    check(X509_REQ_set_pubkey(request.get(), &key), failure);
    check(X509_REQ_add_extensions(request.get(), subject.extensions()), failure);
    check(X509_REQ_sign(request.get(), &key, EVP_sha256()), failure);

    const Owned<BIO, BIO_free> text(check(BIO_new(BIO_s_mem()), failure));
    check(PEM_write_bio_X509_REQ(text.get(), request.get()), failure);
    const char* begin = nullptr;
    const long size = BIO_get_mem_data(text.get(), &begin);
    return {begin, static_cast<std::size_t>(size)};
}

} // namespace Security
