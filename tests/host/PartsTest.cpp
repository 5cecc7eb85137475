#include "HandleTable.h"
#include "RowOrder.h"
#include "statusText.h"

#include "console/host/Trace.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <random>
#include <sstream>

using namespace Console;

TEST(HandleTableTest, takesOnlyItsOwnLiveHandles)
{
    HandleTable<int> table(0x2A5C0000);
    HandleTable<int> other(0x3B7D0000);
    const LONG_PTR first = table.insert(1);
    const LONG_PTR second = table.insert(2);
    EXPECT_EQ(*table.find(first), 1);
    EXPECT_EQ(*table.find(second), 2);
    EXPECT_GT(first, LONG_PTR{0xFFFFFFFF});
    EXPECT_EQ(other.find(first), nullptr);
    table.erase(first);
    EXPECT_EQ(table.find(first), nullptr);
    const LONG_PTR third = table.insert(3);
    EXPECT_NE(third, first) << "the place is used again, the handle is not";
    EXPECT_EQ(table.find(first), nullptr);
    for (const LONG_PTR garbage : {LONG_PTR{0}, LONG_PTR{-1}, LONG_PTR{1}, reinterpret_cast<LONG_PTR>(&table)})
    {
        EXPECT_EQ(table.find(garbage), nullptr);
    }
}

// Against a plain vector, with every operation at random.
TEST(RowOrderTest, behavesAsAVector)
{
    std::mt19937 random(7);
    std::vector<std::unique_ptr<RowLink>> plain;
    RowOrder order;
    for (int step = 0; step < 20000; ++step)
    {
        const int size = static_cast<int>(plain.size());
        const int place = size == 0 ? 0 : static_cast<int>(random() % static_cast<unsigned>(size));
        switch (random() % 5)
        {
        case 0:
        case 1:
            plain.insert(plain.begin() + place, std::make_unique<RowLink>());
            order.insert(place, *plain[static_cast<std::size_t>(place)]);
            break;
        case 2:
            if (size > 0)
            {
                order.erase(*plain[static_cast<std::size_t>(place)]);
                plain.erase(plain.begin() + place);
            }
            break;
        default:
            if (size > 0)
            {
                RowOrder::select(*plain[static_cast<std::size_t>(place)], random() % 2 == 0);
                ASSERT_EQ(order.at(place), plain[static_cast<std::size_t>(place)].get());
                ASSERT_EQ(RowOrder::placeOf(*plain[static_cast<std::size_t>(place)]), place);
                const auto next =
                    std::find_if(plain.begin() + place, plain.end(), [](const auto& each) { return each->selected; });
                ASSERT_EQ(order.nextSelected(place), next == plain.end() ? -1 : static_cast<int>(next - plain.begin()));
                RowLink* const following =
                    place + 1 < size ? plain[static_cast<std::size_t>(place) + 1].get() : nullptr;
                ASSERT_EQ(RowOrder::next(*plain[static_cast<std::size_t>(place)]), following);
            }
        }
        ASSERT_EQ(order.size(), static_cast<int>(plain.size()));
    }
    EXPECT_EQ(order.selectedCount(),
              std::count_if(plain.begin(), plain.end(), [](const auto& each) { return each->selected; }));
}

TEST(StatusTextTest, hasThreeSectionsAndAProgress)
{
    struct Case
    {
        const wchar_t* text;
        const wchar_t* left;
        const wchar_t* middle;
        const wchar_t* right;
        int progress;
    };
    for (const Case& each :
         {Case{L"", L"", L"", L"", -1}, Case{L"alone", L"alone", L"", L"", -1}, Case{L"a|b|c", L"a", L"b", L"c", -1},
          Case{L"a|%7|c", L"a", L"", L"c", 7}, Case{L"a|%150", L"a", L"", L"", 100},
          Case{L"50%%|%%1|", L"50%", L"%1", L"", -1}, Case{L"a|b|c|d", L"a", L"b", L"c", -1}})
    {
        const View::Status status = parseStatusText(each.text);
        EXPECT_EQ(status.left, each.left) << each.progress;
        EXPECT_EQ(status.middle, each.middle);
        EXPECT_EQ(status.right, each.right);
        EXPECT_EQ(status.progress, each.progress);
    }
}

TEST(FileTraceTest, writesALineAnEvent)
{
    const auto path = std::filesystem::temp_directory_path() / L"host-trace-test.txt";
    {
        FileTrace trace(path);
        trace.entered({Direction::toSnapIn, 1, 2, 0, L"IComponent::Notify", L"event=MMCN_SHOW"});
        trace.entered({Direction::toConsole, 1, 2, 1, L"IResultData::InsertItem", L"\"\u00e4\""});
        trace.returned({Direction::toConsole, 1, 2, 1, L"IResultData::InsertItem", L""}, S_OK);
        trace.complained({1, L"Something is wrong."});
    }
    std::stringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    EXPECT_EQ(text.str(), "> [1.2] IComponent::Notify(event=MMCN_SHOW)\r\n"
                          "  < [1.2] IResultData::InsertItem(\"\xC3\xA4\")\r\n"
                          "  = S_OK IResultData::InsertItem\r\n"
                          "! [1] Something is wrong.\r\n");
    std::filesystem::remove(path);
    EXPECT_THROW(FileTrace(L"C:\\no\\such\\folder\\trace.txt"), std::filesystem::filesystem_error);
}
