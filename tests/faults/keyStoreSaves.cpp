#include "Machine.h"
#include "Save.h"

#include "TemporaryFolder.h"

#include "KeyStoreFile.h"
#include "Pkcs12Import.h"
#include "brimlow/security/CertStore.h"
#include "brimlow/system/AtomicFile.h"
#include "describe.h"
#include "privateKey.h"

#include <sstream>
#include <string>

namespace KeyStoreSaves
{
namespace
{

using Core::String;
using Security::KeyStore;
using Security::KeyStoreFile;

Security::CertStore& certificates()
{
    Security::CertStore& store = *Security::CertStore::getCertStoreInstance();
    store.open(true);
    return store;
}

String path(const wchar_t* relative)
{
    return fromPath(Machine::folder() / relative);
}

std::string corpusContent(const wchar_t* name)
{
    return Core::IO::AtomicFile::read(String(L"" TM_PKCS12_CORPUS L"/openssl/") + name + L".p12");
}

void prepareFiles()
{
    Machine::write("outside/a.p12", corpusContent(L"ec"));
    Machine::write("outside/b.p12", corpusContent(L"ed25519"));
}

void importFirst()
{
    certificates().importPKCS12(path(L"outside/a.p12"));
}

void importSecond()
{
    certificates().importPKCS12(path(L"outside/b.p12"));
}

void prepareOne()
{
    prepareFiles();
    importFirst();
}

void prepareTwo()
{
    prepareOne();
    importSecond();
}

// A certificate with its key, to stand for those that the product makes: making an RSA key takes its time.
KeyStore readyMade()
{
    KeyStore store{Security::Secret()};
    const Security::Secret none;
    Security::Pkcs12Import(corpusContent(L"rsa"), none).into(store);
    return store;
}

// What the product does with a certificate that it has made itself, and with the key of a request.
void storeSelfSigned()
{
    const KeyStore made = readyMade();
    const KeyStore::Identity& identity = made.identities().front();
    const Security::KeyPtr key = made.decryptKey(identity);
    KeyStoreFile(KeyStoreFile::machinePath())
        .change([&](KeyStore& store) { store.add(*identity.certificate, *key, {}); });
}

void storeRequest()
{
    const KeyStore made = readyMade();
    const Security::KeyPtr key = made.decryptKey(made.identities().front());
    KeyStoreFile(KeyStoreFile::machinePath()).change([&](KeyStore& store) { store.addWaitingKey(*key); });
}

void removeFirst()
{
    certificates().deleteIdentity(0);
}

void exportFirst()
{
    certificates().exportPKCS12(0, path(L"exported.p12"));
}

void exportSecond()
{
    certificates().exportPKCS12(1, path(L"exported.p12"));
}

void show(const KeyStore& store, std::ostream& out)
{
    for (const KeyStore::Identity& identity : store.identities())
    {
        store.decryptKey(identity);
        out << Security::describe(*identity.certificate).subjectCN.toUtf8() << ' ';
    }
}

void showExport(const std::string& content, std::ostream& out)
{
    out << "exported: ";
    if (content == "old")
    {
        out << content;
        return;
    }
    show(KeyStore(content, Security::Secret()), out);
}

std::string look()
{
    std::ostringstream all;
    KeyStore store = KeyStoreFile(KeyStoreFile::machinePath()).read();
    show(store, all);
    // The answer to the request is taken only where its key waits.
    const KeyStore made = readyMade();
    const KeyStore::Identity& answer = made.identities().front();
    all << (store.join(*answer.certificate, answer.key.id, {}) ? "a key waits " : "");
    if (Core::IO::AtomicFile::exists(path(L"exported.p12")))
    {
        showExport(Core::IO::AtomicFile::read(path(L"exported.p12")), all);
    }
    return all.str();
}

} // namespace
} // namespace KeyStoreSaves

std::vector<Save> keyStoreSaves()
{
    using namespace KeyStoreSaves;
    return {
        {"key store, the first certificate", prepareFiles, importFirst, importSecond, look},
        {"key store, the first one after a crash",
         []
         {
             // The password of a key store that was not written any more.
             prepareOne();
             std::filesystem::remove(toPath(KeyStoreFile::machinePath()));
         },
         importFirst, importSecond, look},
        {"key store, a second certificate", prepareOne, importSecond, storeRequest, look},
        {"key store, a self-signed certificate", prepareOne, storeSelfSigned, importSecond, look},
        {"key store, the key of a request", prepareOne, storeRequest, importSecond, look},
        {"key store, a certificate removed", prepareTwo, removeFirst, storeRequest, look},
        {"key store, exported", prepareTwo, exportFirst, exportSecond, look},
        {"key store, exported over a file",
         []
         {
             prepareTwo();
             Machine::write("exported.p12", "old");
         },
         exportFirst, exportSecond, look},
    };
}
