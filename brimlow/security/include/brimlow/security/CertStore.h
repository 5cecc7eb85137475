#pragma once

#include "brimlow/security/Certificate.h"
#include "brimlow/security/CertificateInfo.h"
#include "brimlow/security/SmartPtr.h"
#include "brimlow/system/Object.h"

#include <string>
#include <vector>

namespace Security
{

// The certificates of the rendering server with their private keys, and the private keys that wait for the answer of a
// certification authority. They are kept in one encrypted file, the key store: the file that the key "KeystoreFile" of
// TSvc.config names, or "Brimlow\KeyStore\KeyStore.p12" in the common application data folder where that key is absent,
// empty or no full path. Only administrators and SYSTEM may read it.
//
// All operations throw a Core::Exception that names the file or the certificate, the reason and the way out. The key
// store is then what it was. A key store that does not exist is an empty one; one that is damaged, or whose password is
// lost, is refused and never overwritten. Several programs may change the key store at once: each change waits for
// the others (five seconds at most) and builds on theirs.
class CertStore : public Core::Object
{
  public:
    // The one store of the process.
    static SmartPtr<CertStore> getCertStoreInstance();

    // true: reads the certificates from the key store, for CertIterator, find and all indexes. false: keeps those that
    // were read last, so that an index goes on meaning the certificate that was listed at it; reads only when nothing
    // was read yet. Changes do not change what was read.
    void open(bool anew);

    // Removes the certificate that was listed at index, counted from 0, and its private key, wherever in the key store
    // it is now. Throws when it is not there any more, and when nothing was listed at index.
    void deleteIdentity(unsigned index);

    // Writes the certificate that was listed at index, its private key and the certificates of its issuers to a
    // PKCS #12 file with an empty password, in the forms of today (AES-256, SHA-256). A new file is for administrators
    // and SYSTEM only; one that is replaced keeps its access list. Throws as deleteIdentity does, and when the file
    // cannot be written.
    void exportPKCS12(unsigned index, const Core::String& fileName);

    // The first of the certificates read with that serial number and that common name of the issuer, both as
    // Certificate gives them, and with that fingerprint unless it is empty. Null when there is none.
    SmartPtr<Certificate> find(const Core::String& serialNumber, const Core::String& issuerName,
                               const std::string& fingerprint);

    // Makes a self-signed certificate, good for 825 days, with a new private key, and stores it behind all others.
    // Throws when a value is empty, too long (see CertificateInfo) or holds what a certificate cannot hold.
    void createPKCS12(const CertificateInfo& info);

    // Makes a request to a certification authority (PKCS #10 in PEM) with a new private key, which waits in the key
    // store until importPKCS12 brings the certificate. Throws as createPKCS12 does.
    Core::String createPKCS12Request(const CertificateInfo& info);

    // Stores every certificate of a PKCS #12 file (10 MB at most) whose private key is in the file or in the key store
    // (one that waits, or that of a certificate to be renewed), behind all others, together with the certificates of
    // its issuers that are in the file. Throws when there is no such certificate, when all are stored already, and when
    // the file is none, is damaged, or would take too long to decrypt. Throws PasswordException when the password is
    // another one; without one the empty password is tried.
    void importPKCS12(const Core::String& fileName);
    void importPKCS12(const Core::String& fileName, const Core::String& password);

  private:
    friend class CertIterator;

    const Certificate& listedAt(unsigned index);

    std::vector<SmartPtr<Certificate>> m_listed;
    bool m_read = false;
};

} // namespace Security
