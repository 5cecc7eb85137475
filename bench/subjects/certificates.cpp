#include "Fixtures.h"
#include "KeyStoreFile.h"
#include "ListBench.h"
#include "Report.h"
#include "SelfSigned.h"
#include "privateKey.h"
#include "subjects/subjects.h"

#include <brimlow/security/CertIterator.h>
#include <brimlow/security/CertStore.h>

namespace Bench
{
namespace
{

using Certificates = Core::SmartPtr<Security::CertStore>;

Certificates openStore(bool anew)
{
    const Certificates store = Security::CertStore::getCertStoreInstance();
    store->open(anew);
    return store;
}

// As many certificates of one key: the making of keys is not what is measured.
void makeCertificates(std::size_t size)
{
    Fixtures::make("nothing", 0);
    const auto key = Security::generateKey();
    Security::CertificateInfo info;
    info.setOrganizationName(L"Bench");
    info.setOrganizationalUnit(L"Bench");
    info.setCommonName(L"bench.example.com");
    info.setCountry(L"FR");
    info.setAddress(L"1, rue de la Gare");
    info.setState(L"Bretagne");
    info.setCity(L"Rennes");
    info.setZip(L"35000");
    info.setEmail(L"bench@example.com");
    const Security::Subject subject(info);
    Security::KeyStoreFile(Security::KeyStoreFile::machinePath())
        .change(
            [&](Security::KeyStore& store)
            {
                for (std::size_t number = 0; number < size; ++number)
                {
                    store.add(*Security::makeSelfSigned(*key, subject), *key, {});
                }
            });
}

std::vector<std::wstring> certificateCells()
{
    Security::CertIterator certificates(*openStore(true));
    std::vector<std::wstring> cells;
    while (const auto certificate = certificates.getNext())
    {
        cells.push_back(certificate->getSerialNumber().str());
        cells.push_back(certificate->getIssuerCN().str());
        cells.push_back(certificate->getSubjectCN().str());
    }
    return cells;
}

} // namespace

void certificates(std::size_t size, std::size_t repetitions)
{
    makeCertificates(size);
    Fixtures::make("keep", 0);
    ListBench bench("Server Certificates",
                    {.name = L"Server Certificates",
                     .columns = {L"Serial No", L"Issuer By", L"Issued To"},
                     .read = certificateCells},
                    {L"Server Certificates"}, size, size, repetitions, [] { Fixtures::make("kept", 0); });
    bench.show();
    bench.leave();
    bench.readTexts();
    bench.change({.what = "look at one",
                  .command = [](List& list) { list.open(list.middle()); },
                  .least =
                      [&]
                  {
                      const List& list = bench.lowest();
                      openStore(false)->find(list.text(list.middle(), 0), list.text(list.middle(), 1), {});
                  },
                  .rows = size,
                  .entered = std::map<int, std::wstring>(),
                  .listsAnew = false});
    bench.change({.what = "delete one",
                  .command = [](List& list) { list.deleteSelected(); },
                  .least = [size] { openStore(false)->deleteIdentity(static_cast<unsigned>(size / 2)); },
                  .rows = size - 1});
    compare("Server Certificates: export one", size, repetitions,
            {.act = [size]
             { openStore(false)->exportPKCS12(static_cast<unsigned>(size / 2), L"C:\\bench\\exported.p12"); }},
            {.act = [] { openStore(true); }});
}

} // namespace Bench
