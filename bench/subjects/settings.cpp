#include "Fixtures.h"
#include "ListBench.h"
#include "kit/ServerFiles.h"
#include "kit/windows.h"
#include "subjects/subjects.h"

#include "tmgmt/resources/ids.h"

#include <brimlow/system/Configuration.h>

#include <algorithm>

namespace Bench
{
namespace
{

// The rows of a node that are none of the tree's, with the titles of their columns.
FloorNode rowsShown(const std::vector<std::wstring>& path)
{
    const FloorNode nothing{.name = L"Floor"};
    Stage stage(nothing);
    List(stage, stage.plugIn(), path).show();
    FloorNode rows{.name = path.back()};
    for (const Console::Column& column : stage.view().columns())
    {
        rows.columns.push_back(column.title);
    }
    std::vector<std::wstring> cells;
    for (int row = 0; row < stage.view().rowCount(); ++row)
    {
        if (stage.view().rowNode(row) != Console::NodeId::none)
        {
            rows.children.push_back({.name = L"Node"});
            continue;
        }
        for (int column = 0; column < static_cast<int>(rows.columns.size()); ++column)
        {
            cells.push_back(stage.view().rowText(row, column));
        }
    }
    rows.read = [cells = std::move(cells)] { return cells; };
    return rows;
}

Core::Configuration read(const std::filesystem::path& file)
{
    Core::Configuration configuration;
    configuration.loadFrom(file.wstring());
    return configuration;
}

// A list that always has the same rows, out of that file.
ListBench fixedList(const std::vector<std::wstring>& path, const std::filesystem::path& file,
                    std::chrono::milliseconds patience)
{
    FloorNode floor = rowsShown(path);
    const std::size_t rows = floor.children.size() + floor.read().size() / floor.columns.size();
    floor.read = [file, cells = floor.read]
    {
        read(file);
        return cells();
    };
    return ListBench(Acceptance::narrow(path.back()), std::move(floor), path, rows, 0, patience, [] {});
}

} // namespace

// The lists of a fixed number of rows.
void settings(std::size_t, std::chrono::milliseconds patience)
{
    const std::filesystem::path configuration = Acceptance::ServerFiles::configuration();
    Fixtures::make("nothing", 0);
    Fixtures::make("settings", 0);
    const auto system = Acceptance::ServerFiles::folder() / L"Common" / L"Config" / L"System.config";
    fixedList({L"About KV Tessaro"}, system, patience).show();
    fixedList({L"Engine Settings", L"AFP Encoder"}, configuration, patience).show();
    fixedList({L"Log"}, configuration, patience).show();

    ListBench listener = fixedList({L"Engine Settings", L"Listener Configuration"}, configuration, patience);
    listener.show();
    listener.change({.what = "edit one",
                     .command = [](List& list) { list.open(list.middle()); },
                     .least =
                         [&]
                     {
                         Core::Configuration changed = read(configuration);
                         changed.setValue(L"ServerPort", L"1100", configuration.wstring());
                         changed.saveTo(configuration.wstring());
                     },
                     .rows = 3,
                     .entry = Entry{IDD_EDIT_PROPERTY, {{IDC_PROPERTY_VALUE, L"1100"}}}});
}

} // namespace Bench
