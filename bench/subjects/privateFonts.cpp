#include "Fixtures.h"
#include "ListBench.h"
#include "kit/ServerFiles.h"
#include "subjects/subjects.h"

#include <brimlow/system/Configuration.h>

namespace Bench
{
namespace
{

constexpr int nameEdit = 232;
constexpr int fileEdit = 233;

Core::String file()
{
    return (Acceptance::ServerFiles::folder() / L"Common" / L"Config" / L"Fonts.config").wstring();
}

std::vector<std::wstring> mappings()
{
    Core::Configuration store;
    store.loadFrom(file());
    std::vector<std::wstring> cells;
    for (std::size_t index = 0; index < store.getKeyCount(); ++index)
    {
        cells.push_back(store.getKeyAt(index).str());
        cells.push_back(store.getValueAt(index).str());
        cells.insert(cells.end(), {L"No", L"No"});
    }
    return cells;
}

// One of the changes that a command makes, each of them a reading and a saving of the whole file.
template <class Change>
void changeFile(Change change)
{
    Core::Configuration store;
    store.loadFrom(file());
    change(store);
    store.saveTo(file());
}

void setMapping(const wchar_t* key)
{
    changeFile([&](Core::Configuration& store) { store.setValue(key, L"C:\\Windows\\Fonts\\new.ttf", file()); });
}

void deleteMapping(const wchar_t* key)
{
    changeFile([&](Core::Configuration& store) { store.deleteValue(key); });
}

} // namespace

void privateFonts(std::size_t size, std::size_t repetitions)
{
    Fixtures::make("fonts", size);
    ListBench bench("Private Fonts",
                    {.name = L"Private Fonts",
                     .columns = {L"Font Family Name", L"Font File Path", L"Is Bold", L"Is Italic"},
                     .read = mappings},
                    {L"Engine Settings", L"Private Fonts"}, size, size, repetitions,
                    [size] { Fixtures::make("fonts", size); });
    bench.show();
    bench.readTexts();

    const std::map<int, std::wstring> entered{{nameEdit, L"Bench"}, {fileEdit, L"C:\\Windows\\Fonts\\new.ttf"}};
    bench.change({.what = "add one",
                  .command = [](List& list) { list.runCommand(L"&Add Private Font..."); },
                  .least = [] { setMapping(L"MapFont:BENCH"); },
                  .rows = size + 1,
                  .entered = entered});

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
                  .entered = entered});
    bench.change({.what = "delete one",
                  .command = [](List& list) { list.deleteSelected(); },
                  .least = [&] { deleteMapping(key.c_str()); },
                  .rows = size - 1});
}

} // namespace Bench
