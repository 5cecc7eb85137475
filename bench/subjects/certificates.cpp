#include "Fixtures.h"
#include "ListBench.h"
#include "Report.h"
#include "certificateFixture.h"
#include "floorLists.h"
#include "subjects/subjects.h"

#include "tmgmt/resources/ids.h"

#include <brimlow/security/CertStore.h>

namespace Bench
{
namespace
{

// Every change writes the whole key store, in proportion to its size.
constexpr std::size_t largestToChange = 1000;

Core::SmartPtr<Security::CertStore> openStore(bool anew)
{
    auto store = Security::CertStore::getCertStoreInstance();
    store->open(anew);
    return store;
}

} // namespace

void certificates(std::size_t size, std::chrono::milliseconds patience)
{
    Fixtures::make("nothing", 0);
    makeCertificates(size);
    Fixtures::make("keep", 0);
    ListBench bench("Server Certificates", certificateList(), {L"Server Certificates"}, size, size, patience,
                    [] { Fixtures::make("kept", 0); });
    bench.show();
    bench.leave();
    bench.readTexts();
    if (size > largestToChange)
    {
        return;
    }
    bench.change({.what = "look at one",
                  .command = [](List& list) { list.open(list.middle()); },
                  .least =
                      [&]
                  {
                      const List& list = bench.lowest();
                      openStore(false)->find(list.text(list.middle(), 0), list.text(list.middle(), 1), {});
                  },
                  .rows = size,
                  .entry = Entry{IDD_CERTIFICATE},
                  .listsAnew = false});
    bench.change({.what = "delete one",
                  .command = &List::deleteSelected,
                  .least = [size] { openStore(false)->deleteIdentity(static_cast<unsigned>(size / 2)); },
                  .rows = size - 1});
    compare("Server Certificates: export one", size, patience,
            {.act = [size]
             { openStore(false)->exportPKCS12(static_cast<unsigned>(size / 2), L"C:\\bench\\exported.p12"); }},
            {.act = [] { openStore(true); }});
}

} // namespace Bench
