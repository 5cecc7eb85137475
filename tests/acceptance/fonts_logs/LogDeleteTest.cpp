#include "fonts_logs/LogsTest.h"
#include "frame/BareSnapIn.h"
#include "frame/nodeData.h"
#include "kit/windows.h"

namespace Acceptance
{
namespace
{

constexpr wchar_t logFilesType[] = L"{036344FF-BD42-45E6-9077-66F1CB3BF96C}";

class DeletingLogs : public LogsTest
{
  protected:
    // The server, which keeps its log open; its name is all that is in the folder.
    std::wstring startServer()
    {
        const std::string port = std::to_string(Service::freePort());
        ServerFiles::write(ServerFiles::configuration(),
                           ServerFiles::configurationWith("    <add key=\"LogLevel\" value=\"Normal\"/>\r\n"
                                                          "    <add key=\"ServerAddress\" value=\"127.0.0.1\"/>\r\n"
                                                          "    <add key=\"ServerPort\" value=\"" +
                                                          port + "\"/>\r\n"));
        Service::install();
        Service::start();
        return names().at(0);
    }
};

// Proves: LogListPropertyItem on Delete.
TEST_F(DeletingLogs, deletesTheFileAndItsRowWithoutAQuestion)
{
    write(L"a.log");
    write(L"b.log");
    write(L"c.log");
    openLogs();
    view().pressDelete(L"b.log");
    EXPECT_EQ((Names{L"a.log", L"c.log"}), names());
    EXPECT_EQ((Names{L"a.log", L"c.log"}), listed());
}

TEST_F(DeletingLogs, showsWhatElseHappenedToTheFolder)
{
    write(L"a.log");
    openLogs();
    write(L"new.log");
    view().pressDelete(L"a.log");
    EXPECT_EQ(Names{L"new.log"}, listed());
}

TEST_F(DeletingLogs, updatesTheOtherViewsOnce)
{
    write(L"a.log");
    write(L"b.log");
    openLogs(3);
    view(2).select(L"Log");
    const auto settings = view(2).rows();
    view(2).takeRedrawnRows();
    recorder.forgetCalls();
    view(0).pressDelete(L"a.log");
    EXPECT_EQ(Names{L"b.log"}, listed(0));
    EXPECT_EQ(Names{L"b.log"}, listed(1));
    EXPECT_EQ(settings, view(2).rows());
    EXPECT_EQ(std::set<int>{}, view(2).takeRedrawnRows());
    EXPECT_EQ(2u, recorder.calls(L"IResultData::InsertItem").size()) << "once in each view that shows it";
    view(1).pressDelete(L"b.log");
    EXPECT_EQ(Names{}, listed(0));
    EXPECT_EQ(Names{}, listed(1));
}

TEST_F(DeletingLogs, leavesALogThatTheServerWritesAndItsRow)
{
    const std::wstring log = startServer();
    openLogs();
    ASSERT_EQ(Names{log}, listed());
    recorder.forgetCalls();
    refusal();
    view().pressDelete(log);
    robot.finish();
    EXPECT_EQ(Names{log}, names());
    EXPECT_EQ(Names{log}, listed());
    EXPECT_TRUE(recorder.calls(L"IResultData::DeleteAllRsltItems").empty());
    EXPECT_TRUE(recorder.calls(L"IConsole::UpdateAllViews").empty());
    EXPECT_EQ(E_FAIL, recorder.calls(L"IComponent::Notify", L"event=MMCN_DELETE").at(0).result);

    Service::control(SERVICE_CONTROL_STOP);
    Service::waitFor(SERVICE_STOPPED);
    view().pressDelete(log);
    EXPECT_EQ(Names{}, names());
}

TEST_F(DeletingLogs, leavesAReadOnlyLog)
{
    write(L"a.log");
    SetFileAttributesW((defaultFolder() / L"a.log").c_str(), FILE_ATTRIBUTE_READONLY);
    openLogs();
    refusal();
    view().pressDelete(L"a.log");
    EXPECT_EQ(Names{L"a.log"}, names());
    EXPECT_EQ(Names{L"a.log"}, listed());
}

TEST_F(DeletingLogs, reportsALogThatIsGoneAndKeepsItsRow)
{
    write(L"a.log");
    openLogs();
    std::filesystem::remove(defaultFolder() / L"a.log");
    refusal();
    view().pressDelete(L"a.log");
    EXPECT_EQ(Names{L"a.log"}, listed());
}

TEST_F(DeletingLogs, deletesNoFolderThatTookTheNameOfALog)
{
    write(L"a.log");
    openLogs();
    std::filesystem::remove(defaultFolder() / L"a.log");
    std::filesystem::create_directory(defaultFolder() / L"a.log");
    refusal();
    view().pressDelete(L"a.log");
    EXPECT_EQ(Names{L"a.log"}, names());
}

TEST_F(DeletingLogs, deletesThroughARowOfAnEarlierListing)
{
    write(L"a.log");
    write(L"b.log");
    BareSnapIn snapIn;
    const auto view = snapIn.makeView();
    const SCOPEDATAITEM node = snapIn.node(logFiles);
    const auto object = snapIn.object(node.lParam);
    ASSERT_EQ(S_OK, view->component->Notify(object.Get(), MMCN_SHOW, TRUE, node.ID));
    const auto row = view->object(view->console.results.rows.at(0).lParam);
    ASSERT_EQ(S_OK, view->component->Notify(object.Get(), MMCN_REFRESH, 0, 0));
    EXPECT_EQ(S_OK, view->component->Notify(row.Get(), MMCN_DELETE, 0, 0));
    EXPECT_EQ(Names{L"b.log"}, names());
    EXPECT_EQ(1u, view->console.results.rows.size());
}

// A data object keeps its row when everything else has gone.
TEST_F(DeletingLogs, answersARowWhoseTreeIsGone)
{
    write(L"a.log");
    Microsoft::WRL::ComPtr<IDataObject> row;
    {
        BareSnapIn former;
        const auto view = former.makeView();
        const SCOPEDATAITEM node = former.node(logFiles);
        ASSERT_EQ(S_OK, view->component->Notify(former.object(node.lParam).Get(), MMCN_SHOW, TRUE, node.ID));
        row = view->object(view->console.results.rows.at(0).lParam);
    }
    BareSnapIn snapIn;
    const auto view = snapIn.makeView();
    const HRESULT result = view->component->Notify(row.Get(), MMCN_DELETE, 0, 0);
    EXPECT_TRUE(result == E_INVALIDARG || result == S_OK) << std::hex << result;
    EXPECT_EQ(Names{}, names());
}

TEST_F(DeletingLogs, allDeletesWhatIsThereNowWithoutAQuestion)
{
    write(L"a.log");
    write(L"gone.log");
    openLogs();
    std::filesystem::remove(defaultFolder() / L"gone.log");
    for (const wchar_t* const name : {L"new.log", L"NEW.LOG.LOG", L"notes.txt", L"old.log1"})
    {
        write(name);
    }
    view().runNodeCommand(logFiles, deleteAll);
    EXPECT_EQ((Names{L"notes.txt", L"old.log1"}), names());
    EXPECT_EQ(Names{}, listed());
}

TEST_F(DeletingLogs, allLeavesFoldersAlone)
{
    write(L"inner.log", defaultFolder() / L"folder.log");
    write(L"inner.log", defaultFolder() / L"folder");
    write(L"a.log");
    openLogs();
    view().runNodeCommand(logFiles, deleteAll);
    EXPECT_EQ((Names{L"folder", L"folder.log"}), names());
    EXPECT_EQ(Names{L"inner.log"}, names(defaultFolder() / L"folder.log"));
    EXPECT_EQ(Names{L"inner.log"}, names(defaultFolder() / L"folder"));
}

TEST_F(DeletingLogs, allPassesOverWhatCannotBeDeleted)
{
    const std::wstring log = startServer();
    write(L"0.log");
    write(L"read-only.log");
    write(L"z.log");
    SetFileAttributesW((defaultFolder() / L"read-only.log").c_str(), FILE_ATTRIBUTE_READONLY);
    openLogs();
    view().runNodeCommand(logFiles, deleteAll);
    EXPECT_EQ((Names{log, L"read-only.log"}), names());
    EXPECT_EQ((Names{log, L"read-only.log"}), listed());
}

TEST_F(DeletingLogs, allDoesNothingInAnEmptyFolder)
{
    std::filesystem::create_directories(defaultFolder());
    openLogs();
    view().runNodeCommand(logFiles, deleteAll);
    EXPECT_EQ(Names{}, names());
    EXPECT_EQ(Names{}, listed());
}

TEST_F(DeletingLogs, allDoesNothingWithoutTheFolder)
{
    openLogs();
    view().runNodeCommand(logFiles, deleteAll);
    EXPECT_FALSE(std::filesystem::exists(defaultFolder()));
}

TEST_F(DeletingLogs, allTellsEveryViewOnce)
{
    write(L"a.log");
    write(L"b.log");
    openLogs(2);
    recorder.forgetCalls();
    view(1).runNodeCommand(logFiles, deleteAll);
    EXPECT_EQ(Names{}, listed(0));
    EXPECT_EQ(Names{}, listed(1));
    const auto updates = recorder.calls(L"IConsole::UpdateAllViews");
    ASSERT_EQ(1u, updates.size());
    EXPECT_NE(std::wstring::npos, updates[0].call.arguments.find(L"data=0, hint=0"))
        << narrow(updates[0].call.arguments);
}

TEST_F(DeletingLogs, allWorksFromTheTreeWithoutAView)
{
    write(L"a.log");
    BareSnapIn snapIn;
    const SCOPEDATAITEM node = snapIn.node(logFiles);
    bool deleted = false;
    snapIn.console.onUpdate = [&](IDataObject*) { deleted = names().empty(); };
    EXPECT_EQ(S_OK, snapIn.menus()->Command(1038, snapIn.object(node.lParam).Get()));
    EXPECT_TRUE(deleted) << "the views are told when the files have gone";
    EXPECT_EQ((std::vector<ConsoleDouble::Update>{{guid(logFilesType), 0, 0}}), snapIn.console.updates);
}

TEST_F(DeletingLogs, otherCommandsDeleteNothing)
{
    write(L"a.log");
    BareSnapIn snapIn;
    const auto view = snapIn.makeView();
    const SCOPEDATAITEM node = snapIn.node(logFiles);
    ASSERT_EQ(S_OK, view->component->Notify(snapIn.object(node.lParam).Get(), MMCN_SHOW, TRUE, node.ID));
    const auto row = view->object(view->console.results.rows.at(0).lParam);
    EXPECT_EQ(S_OK, snapIn.menus()->Command(1041, snapIn.object(node.lParam).Get()));
    EXPECT_EQ(S_OK, view->menus()->Command(1038, row.Get()));
    EXPECT_EQ(Names{L"a.log"}, names());
}

} // namespace
} // namespace Acceptance
