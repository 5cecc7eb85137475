#include "ListBench.h"

#include "Report.h"
#include "floor/floorDialog.h"

#include <utility>

namespace Bench
{

ListBench::ListBench(std::string name, FloorNode node, const std::vector<std::wstring>& path, std::size_t rows,
                     std::size_t size, std::chrono::milliseconds patience, std::function<void()> restore)
    : m_name(std::move(name)),
      m_floor{.name = L"Floor", .children = {std::move(node)}},
      m_rows(rows),
      m_size(size),
      m_patience(patience),
      m_restore(std::move(restore)),
      m_stage(m_floor),
      m_plugIn(m_stage, m_stage.plugIn(), path),
      m_lowest(m_stage, m_stage.floor(), {m_floor.children.front().name})
{
}

std::function<void()> ListBench::expect(std::size_t rows)
{
    return [this, rows] { m_plugIn.expectRows(rows); };
}

void ListBench::show()
{
    const auto side = [this](List& list)
    { return Side{.act = [&list] { list.show(); }, .before = [this] { m_stage.leave(); }, .after = expect(m_rows)}; };
    compare(title("show").c_str(), m_size, m_patience, side(m_plugIn), side(m_lowest));
}

void ListBench::leave()
{
    const auto side = [this](List& list)
    { return Side{.act = [this] { m_stage.leave(); }, .before = [&list] { list.show(); }}; };
    compare(title("leave").c_str(), m_size, m_patience, side(m_plugIn), side(m_lowest));
}

void ListBench::readTexts()
{
    const auto side = [this](List& list)
    { return Side{.act = [&list] { list.readTexts(); }, .before = [&list] { list.show(); }, .after = expect(m_rows)}; };
    compare(title("read every text").c_str(), m_size, m_patience, side(m_plugIn), side(m_lowest));
}

void ListBench::refresh(const char* when, std::function<void()> prepare)
{
    const auto side = [&](List& list)
    {
        return Side{.act = [&list] { list.refresh(); },
                    .before =
                        [&list, prepare]
                    {
                        list.show();
                        prepare();
                    },
                    .after = expect(m_rows)};
    };
    compare((title("refresh, ") + when).c_str(), m_size, m_patience, side(m_plugIn), side(m_lowest));
}

void ListBench::prepare(List& list, const Change& change)
{
    // Shown before, it may list what the last run left.
    m_stage.leave();
    list.show();
    list.select(list.middle());
    m_answer.reset();
    if (change.entry)
    {
        m_stage.frame().activate();
        m_answer.emplace(change.entry->texts);
    }
}

void ListBench::change(const Change& change)
{
    FloorNode& node = m_floor.children.front();
    node.listsAnew = change.listsAnew;
    node.change = [&change]
    {
        if (change.entry)
        {
            showFloorDialog(change.entry->dialog);
        }
        change.least();
    };
    const auto checkAndRestore = [&]
    {
        m_plugIn.expectRows(change.rows);
        m_restore();
    };
    compare(title(change.what).c_str(), m_size, m_patience,
            {.act = [&] { change.command(m_plugIn); },
             .before = [&] { prepare(m_plugIn, change); },
             .after = checkAndRestore},
            {.act = [this] { m_lowest.refresh(); },
             .before = [&] { prepare(m_lowest, change); },
             .after = checkAndRestore});
    m_answer.reset();
    node.change = nullptr;
}

} // namespace Bench
