#include "fonts_logs/LogsTest.h"
#include "frame/BareSnapIn.h"
#include "frame/menus.h"
#include "frame/nodeData.h"
#include "kit/ImportSpy.h"
#include "kit/windows.h"

#include <gmock/gmock.h>

namespace Acceptance
{
namespace
{

// What the node "Log Files" shows.
class LogList : public LogsTest
{
};

TEST_F(LogList, hasOneColumn)
{
    openLogs();
    EXPECT_EQ((std::vector<ConsoleView::Column>{{L"Log name", 300}}), view().columns());
}

TEST_F(LogList, isNotSortedByItsHeader)
{
    BareSnapIn snapIn;
    const auto view = snapIn.makeView();
    const SCOPEDATAITEM node = snapIn.node(logFiles);
    ASSERT_EQ(S_OK, view->component->Notify(snapIn.object(node.lParam).Get(), MMCN_SHOW, TRUE, node.ID));
    const std::pair unsorted{MMC_NOSORTHEADER, static_cast<MMC_RESULT_VIEW_STYLE>(0)};
    EXPECT_EQ(std::vector{unsorted}, view->console.results.styles);
}

TEST_F(LogList, hasTheFilesThatEndInLogInTheOrderOfTheirNames)
{
    for (const wchar_t* const name :
         {L"b.log", L"A.log", L"UPPER.LOG", L"_.log", L"notes.txt", L"old.log1", L"log", L"a.log.zip"})
    {
        write(name);
    }
    openLogs();
    EXPECT_EQ((Names{L"A.log", L"b.log", L"UPPER.LOG", L"_.log"}), listed());
}

TEST_F(LogList, hasNoFolders)
{
    write(L"inner.log", defaultFolder() / L"folder.log");
    openLogs();
    EXPECT_EQ(Names{}, listed());
}

TEST_F(LogList, isEmptyWithoutTheFolder)
{
    openLogs();
    EXPECT_EQ(Names{}, listed());
    EXPECT_FALSE(std::filesystem::exists(defaultFolder())) << "looking must not make it";
}

TEST_F(LogList, isEmptyWhereAFileIsInPlaceOfTheFolder)
{
    ServerFiles::write(defaultFolder(), "");
    openLogs();
    EXPECT_EQ(Names{}, listed());
}

TEST_F(LogList, isEmptyForAServerThatIsNotThere)
{
    setFolder(L"\\\\no-such-server\\share\\Log\\");
    openLogs();
    EXPECT_EQ(Names{}, listed());
}

TEST_F(LogList, showsNamesInAnyScriptAsTheyAre)
{
    const Names all{L" leading blank.log",
                    L"100% & more [x] {y}; 'z'.log",
                    L"e\u0301 is not \u00E9.log",
                    L"\u00E9.log",
                    L"\u0416\u0443\u0440\u043D\u0430\u043B.log",
                    L"\u05D9\u05D5\u05DE\u05DF.log",
                    L"\u0E1A\u0E31\u0E19\u0E17\u0E36\u0E01.log",
                    L"\u65E5\u672C\u8A9E.log",
                    L"\U0001F600.log"};
    for (const std::wstring& name : all)
    {
        write(name);
    }
    openLogs();
    EXPECT_THAT(listed(), testing::UnorderedElementsAreArray(all));
    for (const std::wstring& name : all)
    {
        view().pressDelete(name);
    }
    EXPECT_EQ(Names{}, names());
}

// Windows allows it in a file's name, Wine does not.
TEST_F(LogList, keepsHalfASurrogatePair)
{
    const std::wstring name = L"a\xD800z.log";
    std::filesystem::create_directories(defaultFolder());
    open();
    ImportSpy<"FindFirstFileExW", decltype(FindFirstFileExW)> listing(
        [&](LPCWSTR pattern, FINDEX_INFO_LEVELS level, LPVOID found, auto... rest)
        {
            const HANDLE search = listing.callThrough(pattern, level, found, rest...);
            std::copy_n(name.c_str(), name.size() + 1, static_cast<WIN32_FIND_DATAW*>(found)->cFileName);
            static_cast<WIN32_FIND_DATAW*>(found)->dwFileAttributes = FILE_ATTRIBUTE_NORMAL;
            return search;
        });
    std::wstring deleted;
    ImportSpy<"DeleteFileW", decltype(DeleteFileW)> deletion(
        [&](LPCWSTR path)
        {
            deleted = path;
            return TRUE;
        });
    view().select(logFiles);
    EXPECT_EQ(name, view().rows().at(0).at(0));
    view().pressDelete(name);
    EXPECT_EQ(name, std::filesystem::path(deleted).filename().wstring());
}

TEST_F(LogList, hasNothingInFurtherColumns)
{
    write(L"a.log");
    BareSnapIn snapIn;
    const auto view = snapIn.makeView();
    const SCOPEDATAITEM node = snapIn.node(logFiles);
    ASSERT_EQ(S_OK, view->component->Notify(snapIn.object(node.lParam).Get(), MMCN_SHOW, TRUE, node.ID));
    ASSERT_EQ(1u, view->console.results.rows.size());
    const MMC_COOKIE row = view->console.results.rows.at(0).lParam;
    EXPECT_EQ(L"a.log", view->cell(row, 0));
    EXPECT_EQ(L"", view->cell(row, 1));
    EXPECT_EQ(L"", view->cell(row, 7));
}

TEST_F(LogList, isReadWhenTheNodeIsMadeAndEveryTimeThatItIsShown)
{
    write(L"a.log");
    open();
    ImportSpy<"FindFirstFileExW", decltype(FindFirstFileExW)> listing;
    view().select(logFiles);
    EXPECT_EQ(1, listing.calls());
    EXPECT_EQ(Names{L"a.log"}, listed());
    write(L"b.log");
    std::filesystem::remove(defaultFolder() / L"a.log");
    EXPECT_EQ(Names{L"a.log"}, listed());
    showAgain();
    EXPECT_EQ(2, listing.calls());
    EXPECT_EQ(Names{L"b.log"}, listed());
}

TEST_F(LogList, leavesTheOtherViewsAloneWhenItIsShown)
{
    write(L"a.log");
    openLogs(2);
    view(0).takeRedrawnRows();
    recorder.forgetCalls();
    showAgain(1);
    EXPECT_EQ(std::set<int>{}, view(0).takeRedrawnRows());
    EXPECT_TRUE(recorder.calls(L"IConsole::UpdateAllViews").empty());
}

TEST_F(LogList, isReadUnderTheWaitCursorOnceTheOldRowsAreGone)
{
    write(L"a.log");
    openLogs();
    const HCURSOR cross = LoadCursorW(nullptr, IDC_CROSS);
    const HCURSOR former = SetCursor(cross);
    recorder.forgetCalls();
    ImportSpy<"FindFirstFileExW", decltype(FindFirstFileExW)> listing(
        [&](auto... arguments)
        {
            EXPECT_EQ(LoadCursorW(nullptr, IDC_WAIT), GetCursor());
            EXPECT_EQ(1u, recorder.calls(L"IResultData::DeleteAllRsltItems").size());
            EXPECT_TRUE(recorder.calls(L"IResultData::InsertItem").empty());
            return listing.callThrough(arguments...);
        });
    view().pressDelete(L"a.log");
    EXPECT_EQ(1, listing.calls());
    EXPECT_EQ(cross, GetCursor());
    SetCursor(former);
}

// Proves: LogListItem on the console's refresh.
TEST_F(LogList, answersARefreshThatComesAllTheSame)
{
    write(L"a.log");
    BareSnapIn snapIn;
    const auto view = snapIn.makeView();
    const SCOPEDATAITEM node = snapIn.node(logFiles);
    const auto object = snapIn.object(node.lParam);
    ASSERT_EQ(S_OK, view->component->Notify(object.Get(), MMCN_SHOW, TRUE, node.ID));
    write(L"b.log");
    EXPECT_EQ(S_OK, view->component->Notify(object.Get(), MMCN_REFRESH, 0, 0));
    ASSERT_EQ(2u, view->console.results.rows.size());
    EXPECT_EQ(L"a.log", view->cell(view->console.results.rows[0].lParam, 0));
    EXPECT_EQ(L"b.log", view->cell(view->console.results.rows[1].lParam, 0));
}

TEST_F(LogList, hasItsMenus)
{
    write(L"a.log");
    openLogs();
    EXPECT_EQ(Names{deleteAll}, view().nodeMenu(logFiles));
    EXPECT_EQ((Names{openLog, L"-", L"&Delete"}), view().menu(L"a.log"));
}

TEST_F(LogList, hasItsCommandsUnderTheirNumbersAtTheTopOfTheMenu)
{
    write(L"a.log");
    EXPECT_EQ(std::vector{topItem(deleteAll, 1038)}, menuOfNode(logFiles));
    EXPECT_EQ(std::vector{topItem(openLog, 1041)}, menuOfRow(logFiles, 0));
}

TEST_F(LogList, offersDeletingOnARowOnly)
{
    write(L"a.log");
    openLogs();
    EXPECT_FALSE(view().view().verb(MMC_VERB_DELETE).enabled);
    EXPECT_TRUE(view().canDelete(L"a.log"));
}

TEST_F(LogList, tellsWhenVerbsCannotBeHad)
{
    write(L"a.log");
    BareSnapIn snapIn;
    const auto view = snapIn.makeView();
    const SCOPEDATAITEM node = snapIn.node(logFiles);
    ASSERT_EQ(S_OK, view->component->Notify(snapIn.object(node.lParam).Get(), MMCN_SHOW, TRUE, node.ID));
    const auto row = view->object(view->console.results.rows.at(0).lParam);
    EXPECT_EQ(S_OK, view->component->Notify(row.Get(), MMCN_SELECT, MAKELONG(FALSE, TRUE), 0));
    EXPECT_EQ(S_OK, view->component->Notify(row.Get(), MMCN_SELECT, MAKELONG(FALSE, FALSE), 0));
    view->console.verbAnswer = E_FAIL;
    EXPECT_EQ(S_FALSE, view->component->Notify(row.Get(), MMCN_SELECT, MAKELONG(FALSE, TRUE), 0));
}

} // namespace
} // namespace Acceptance
