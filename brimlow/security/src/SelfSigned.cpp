#include "SelfSigned.h"

#include "failure.h"

#include <openssl/bn.h>

namespace Security
{

namespace
{

constexpr wchar_t certificateFailure[] = L"A certificate cannot be made";

// The longest time for which all usual programs trust a server's certificate.
constexpr int validDays = 825;
// Computers whose clocks are a little behind accept the certificate too.
constexpr long startsEarlierBySeconds = 5L * 60;

void setSerialNumber(X509& certificate)
{
    const Owned<BIGNUM, BN_free> number(check(BN_new(), certificateFailure));
    check(BN_rand(number.get(), 128, BN_RAND_TOP_ANY, BN_RAND_BOTTOM_ANY), certificateFailure);
    check(BN_to_ASN1_INTEGER(number.get(), X509_get_serialNumber(&certificate)), certificateFailure);
}

void setSubjectKeyIdentifier(X509& certificate)
{
    unsigned char digest[EVP_MAX_MD_SIZE];
    unsigned size = 0;
    check(X509_pubkey_digest(&certificate, EVP_sha1(), digest, &size), certificateFailure); // as RFC 5280 proposes
    const Owned<ASN1_OCTET_STRING, ASN1_OCTET_STRING_free> identifier(
        check(ASN1_OCTET_STRING_new(), certificateFailure));
    check(ASN1_OCTET_STRING_set(identifier.get(), digest, static_cast<int>(size)), certificateFailure);
    check(X509_add1_ext_i2d(&certificate, NID_subject_key_identifier, identifier.get(), 0, X509V3_ADD_APPEND),
          certificateFailure);
}

} // namespace

X509Ptr makeSelfSigned(EVP_PKEY& key, const Subject& subject)
{
    X509Ptr certificate(check(X509_new(), certificateFailure));
    check(X509_set_version(certificate.get(), X509_VERSION_3), certificateFailure);
    setSerialNumber(*certificate);
    check(X509_set_subject_name(certificate.get(), subject.name()), certificateFailure);
    check(X509_set_issuer_name(certificate.get(), subject.name()), certificateFailure);
    check(X509_time_adj_ex(X509_getm_notBefore(certificate.get()), 0, -startsEarlierBySeconds, nullptr),
          certificateFailure);
    check(X509_time_adj_ex(X509_getm_notAfter(certificate.get()), validDays, -startsEarlierBySeconds, nullptr),
          certificateFailure);
    check(X509_set_pubkey(certificate.get(), &key), certificateFailure);
    for (int at = 0; at < sk_X509_EXTENSION_num(subject.extensions()); ++at)
    {
        check(X509_add_ext(certificate.get(), sk_X509_EXTENSION_value(subject.extensions(), at), -1),
              certificateFailure);
    }
    setSubjectKeyIdentifier(*certificate);
    check(X509_sign(certificate.get(), &key, EVP_sha256()), certificateFailure);
    return certificate;
}

} // namespace Security
