#include "DialogAnswer.h"
#include "Fixtures.h"
#include "List.h"
#include "Report.h"
#include "floor/floorDialog.h"
#include "kit/ServerFiles.h"
#include "subjects/subjects.h"

#include <brimlow/system/Configuration.h>

#include <optional>

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
    FloorNode floor{.name = L"Floor",
                    .children = {{.name = L"Private Fonts",
                                  .columns = {L"Font Family Name", L"Font File Path", L"Is Bold", L"Is Italic"},
                                  .read = mappings,
                                  .change = {}}}};
    std::function<void()>& change = floor.children.front().change;
    Stage stage(floor);
    List plugIn(stage, stage.plugIn(), {L"Engine Settings", L"Private Fonts"});
    List lowest(stage, stage.floor(), {L"Private Fonts"});

    const auto leave = [&] { stage.leave(); };
    const auto show = [](List& list) { return [&list] { list.show(); }; };
    const auto expect = [&](std::size_t rows)
    {
        return [&, rows]
        {
            plugIn.expectRows(rows);
            Fixtures::make("fonts", size);
        };
    };
    compare("Private Fonts: show", size, repetitions, {.act = show(plugIn), .before = leave, .after = expect(size)},
            {.act = show(lowest), .before = leave, .after = expect(size)});
    compare("Private Fonts: read every text", size, repetitions,
            {.act = [&] { plugIn.readTexts(); }, .before = show(plugIn), .after = expect(size)},
            {.act = [&] { lowest.readTexts(); }, .before = show(lowest), .after = expect(size)});

    std::optional<DialogAnswer> answer;
    const auto showAndAwait = [&](List& list)
    {
        return [&]
        {
            list.show();
            list.select(list.middle());
            stage.frame().activate();
            answer.reset();
            answer.emplace(
                std::map<int, std::wstring>{{nameEdit, L"Bench"}, {fileEdit, L"C:\\Windows\\Fonts\\new.ttf"}});
        };
    };

    change = []
    {
        showFloorDialog();
        setMapping(L"MapFont:BENCH");
    };
    compare("Private Fonts: add one", size, repetitions,
            {.act = [&] { plugIn.runCommand(L"&Add Private Font..."); },
             .before = showAndAwait(plugIn),
             .after = expect(size + 1)},
            {.act = [&] { lowest.refresh(); }, .before = showAndAwait(lowest), .after = expect(size + 1)});

    plugIn.show();
    const std::wstring key = L"MapFont:" + plugIn.text(plugIn.middle(), 0);
    change = [&]
    {
        showFloorDialog();
        deleteMapping(key.c_str());
        setMapping(L"MapFont:BENCH");
    };
    compare("Private Fonts: edit one", size, repetitions,
            {.act = [&] { plugIn.open(plugIn.middle()); }, .before = showAndAwait(plugIn), .after = expect(size)},
            {.act = [&] { lowest.refresh(); }, .before = showAndAwait(lowest), .after = expect(size)});

    answer.reset();
    change = [&] { deleteMapping(key.c_str()); };
    compare("Private Fonts: delete one", size, repetitions,
            {.act = [&] { plugIn.deleteSelected(); },
             .before =
                 [&]
             {
                 plugIn.show();
                 plugIn.select(plugIn.middle());
             },
             .after = expect(size - 1)},
            {.act = [&] { lowest.refresh(); }, .before = show(lowest), .after = expect(size - 1)});
}

} // namespace Bench
