#include "Fixtures.h"
#include "ListBench.h"
#include "floorLists.h"
#include "subjects/subjects.h"

#include "tmgmt/resources/ids.h"

#include <brimlow/system/Configuration.h>

namespace Bench
{
namespace
{

// One of the changes that a command makes, each of them a reading and a saving of the whole file.
template <class Change>
void changeFile(Change change)
{
    Core::Configuration store;
    store.loadFrom(fontsFile());
    change(store);
    store.saveTo(fontsFile());
}

void setMapping(const wchar_t* key)
{
    changeFile([&](Core::Configuration& store) { store.setValue(key, L"C:\\Windows\\Fonts\\new.ttf", fontsFile()); });
}

void deleteMapping(const wchar_t* key)
{
    changeFile([&](Core::Configuration& store) { store.deleteValue(key); });
}

} // namespace

void privateFonts(std::size_t size, std::chrono::milliseconds patience)
{
    Fixtures::make("nothing", 0);
    Fixtures::make("fonts", size);
    Fixtures::make("keep", 0);
    ListBench bench("Private Fonts", privateFontList(), {L"Engine Settings", L"Private Fonts"}, size, size, patience,
                    [] { Fixtures::make("kept", 0); });
    bench.show();
    bench.leave();
    bench.readTexts();

    const Entry entry{IDD_EDIT_PRIVATE_FONT,
                      {{IDC_FONT_NAME, L"Bench"}, {IDC_FONT_FILE, L"C:\\Windows\\Fonts\\new.ttf"}}};
    bench.change({.what = "add one",
                  .command = [](List& list) { list.runCommand(L"&Add Private Font..."); },
                  .least = [] { setMapping(L"MapFont:BENCH"); },
                  .rows = size + 1,
                  .entry = entry});

    bench.plugIn().show();
    const std::wstring key = L"MapFont:" + bench.plugIn().text(bench.plugIn().middle(), 0);
    bench.change({.what = "edit one",
                  .command = [](List& list) { list.open(list.middle()); },
                  .least =
                      [&]
                  {
                      deleteMapping(key.c_str());
                      setMapping(L"MapFont:BENCH");
                  },
                  .rows = size,
                  .entry = entry});
    bench.change({.what = "delete one",
                  .command = &List::deleteSelected,
                  .least = [&] { deleteMapping(key.c_str()); },
                  .rows = size - 1});
}

} // namespace Bench
