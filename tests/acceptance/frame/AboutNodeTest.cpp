#include "frame/BareSnapIn.h"
#include "frame/systemConfiguration.h"
#include "kit/ConsoleTest.h"

namespace Acceptance
{
namespace
{

using Rows = std::vector<std::vector<std::wstring>>;

class AboutNode : public ConsoleTest
{
  protected:
    Rows shown()
    {
        open();
        view().select(L"About KV Tessaro");
        return view().rows();
    }

    static Rows facts(const wchar_t* name, const wchar_t* version, const wchar_t* build)
    {
        return {
            {L"Product Name", name}, {L"Version", version}, {L"Build Number", build}, {L"Build Date", L"Nov 5, 2009"}};
    }
};

TEST_F(AboutNode, hasTwoColumnsThatDoNotSort)
{
    open();
    view().select(L"About KV Tessaro");
    const std::vector<ConsoleView::Column> columns{{L"Property", 200}, {L"Value", 200}};
    EXPECT_EQ(columns, view().columns());
    EXPECT_FALSE(view().view().sortable());
}

TEST_F(AboutNode, showsWhatTheSystemConfigurationSays)
{
    SystemConfiguration::write(SystemConfiguration::complete);
    EXPECT_EQ(facts(L"KV Tessaro Server", L"10.2.7", L"4711"), shown());
}

TEST_F(AboutNode, showsUnknownThreeTimesWithoutTheFile)
{
    EXPECT_EQ(facts(L"Unknown", L"Unknown", L"Unknown"), shown());
}

TEST_F(AboutNode, showsNothingForAKeyThatIsMissing)
{
    SystemConfiguration::write("    <add key=\"ProductName\" value=\"KV Tessaro Server\"/>\r\n"
                               "    <add key=\"ProductVersion\" value=\"10.2.7\"/>\r\n");
    EXPECT_EQ(facts(L"KV Tessaro Server", L"10.2.7", L""), shown());
}

TEST_F(AboutNode, showsNothingForAnEmptyFile)
{
    ServerFiles::write(SystemConfiguration::file(), "");
    EXPECT_EQ(facts(L"", L"", L""), shown());
}

TEST_F(AboutNode, showsUnknownWithoutAMessageWhenTheFileIsMalformed)
{
    for (const char* const text : {"<configuration>", "no XML at all", "<other/>"})
    {
        ServerFiles::write(SystemConfiguration::file(), text);
        EXPECT_EQ(facts(L"Unknown", L"Unknown", L"Unknown"), shown()) << '"' << text << '"';
        close();
    }
}

TEST_F(AboutNode, showsUnknownWithoutAMessageWhenTheFileCannotBeOpened)
{
    SystemConfiguration::write(SystemConfiguration::complete);
    const ServerFiles::Lock lock(SystemConfiguration::file());
    EXPECT_EQ(facts(L"Unknown", L"Unknown", L"Unknown"), shown());
}

TEST_F(AboutNode, keepsItsFactsUntilTheSnapInIsLoadedAgain)
{
    EXPECT_EQ(facts(L"Unknown", L"Unknown", L"Unknown"), shown());
    SystemConfiguration::write(SystemConfiguration::complete);
    view().select(L"Log");
    view().select(L"About KV Tessaro");
    EXPECT_EQ(facts(L"Unknown", L"Unknown", L"Unknown"), view().rows());
    close();
    EXPECT_EQ(facts(L"KV Tessaro Server", L"10.2.7", L"4711"), shown());
}

TEST_F(AboutNode, rowsHaveNothingInOtherColumns)
{
    BareSnapIn snapIn;
    const auto view = snapIn.makeView();
    view->component->Notify(snapIn.object(L"About KV Tessaro").Get(), MMCN_SHOW, TRUE, 1);
    for (const RESULTDATAITEM& row : view->console.results.rows)
    {
        EXPECT_EQ(L"", view->cell(row.lParam, 2));
        EXPECT_EQ(L"", view->cell(row.lParam, -1));
        EXPECT_EQ(L"", view->cell(row.lParam, 1000));
    }
}

TEST_F(AboutNode, showingItTellsTheViewsOfTheNode)
{
    BareSnapIn snapIn;
    const auto view = snapIn.makeView();
    view->component->Notify(snapIn.object(L"About KV Tessaro").Get(), MMCN_SHOW, TRUE, 1);
    ASSERT_EQ(1u, view->console.updates.size());
    EXPECT_EQ(
        (ConsoleDouble::Update{{0x3F7862F1, 0xCC1A, 0x424B, {0x90, 0xF8, 0xD5, 0x7B, 0xC7, 0xEB, 0xE0, 0x21}}, 0, 0}),
        view->console.updates.front());
    EXPECT_EQ(1, view->console.results.clears);
}

TEST_F(AboutNode, doubleClickOnARowOnlySelectsWhatItsHandleNames)
{
    open();
    view().select(L"About KV Tessaro");
    const auto rows = view().rows();
    view().doubleClick(L"Version");
    recorder.takeComplaints(); // a row is no node: the console refuses to select it
    EXPECT_EQ(L"About KV Tessaro", view().selected());
    EXPECT_EQ(rows, view().rows());
    EXPECT_FALSE(view().canDelete(L"Version"));
}

} // namespace
} // namespace Acceptance
