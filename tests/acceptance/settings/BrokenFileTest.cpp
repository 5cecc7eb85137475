#include "kit/windows.h"
#include "settings/SettingsTest.h"

namespace Acceptance
{
namespace
{

// A configuration file that cannot be read or written: the tree loads, the administrator is told once, and nothing
// that is in the file is lost.
class BrokenFile : public SettingsTest
{
  protected:
    static constexpr int noLine = 0;

    void SetUp() override
    {
        SettingsTest::SetUp();
        Registry::preferRestart(false);
    }

    // One box that belongs to no window, names the file and says more than its name; where the fault has a place in the
    // file, the line too.
    void report(int line = noLine, std::source_location where = std::source_location::current())
    {
        robot.messageThat(
            [line](const MessageBoxSeen& box)
            {
                const std::wstring file = ServerFiles::configuration().wstring();
                EXPECT_EQ(productCaption, box.caption);
                EXPECT_EQ(static_cast<UINT>(MB_ICONERROR), box.icon);
                EXPECT_EQ(Owner::none, box.owner);
                EXPECT_EQ(std::vector<int>{IDOK}, box.buttons);
                EXPECT_NE(std::wstring::npos, box.text.find(file)) << narrow(box.text);
                EXPECT_GT(box.text.size(), file.size() + 10) << narrow(box.text);
                if (line != noLine)
                {
                    EXPECT_NE(std::wstring::npos, box.text.find(L"line " + std::to_wstring(line) + L","))
                        << narrow(box.text);
                }
            },
            where);
    }

    // Opens the console: one report, and the defaults.
    void expectDefaultsAfterOneReport(int line = noLine, std::source_location where = std::source_location::current())
    {
        report(line, where);
        ASSERT_NO_FATAL_FAILURE(open());
        robot.finish();
        for (const Setting& setting : allSettings())
        {
            view().select(setting.node);
            EXPECT_EQ(setting.shown(setting.defaultValue), view().cell(setting.name, L"Value"));
            EXPECT_EQ(L"Yes", view().cell(setting.name, L"Is Default"));
        }
    }

    // A confirmed edit is refused with one report; nothing else happens.
    void expectRefusedEdit(const wchar_t* shown, int line = noLine,
                           std::source_location where = std::source_location::current())
    {
        view().select(listener);
        recorder.forgetCalls();
        typeAndConfirm(L"2099", where);
        report(line, where);
        view().doubleClick(L"Port");
        robot.finish();
        EXPECT_EQ(shown, view().cell(L"Port", L"Value"));
        EXPECT_TRUE(recorder.calls(L"IConsole::UpdateAllViews").empty());
    }

    void expectRefusedReset(int line = noLine, std::source_location where = std::source_location::current())
    {
        view().select(listener);
        editor([](ModalWindow& dialog) { dialog.press(Editor::reset); }, where);
        report(line, where);
        view().doubleClick(L"Port");
        robot.finish();
    }
};

struct BrokenContent
{
    const char* name;
    std::string content;
    // Where the fault is; 0 where it is in no line.
    int line;
};

void PrintTo(const BrokenContent& broken, std::ostream* out)
{
    *out << broken.name;
}

std::vector<BrokenContent> brokenContents()
{
    const std::string whole = ServerFiles::configurationWith("    <add key=\"ServerPort\" value=\"2000\"/>\r\n");
    const auto after = [](const std::string& text, const std::string& place, const std::string& more)
    { return std::string(text).insert(text.find(place) + place.size(), more); };
    return {
        {"CutOff", whole.substr(0, whole.find("value")), 4},
        {"NotXml", "ServerPort=2000\r\n", 1},
        {"Binary", std::string("MZ\x90\0\x03\0\0\0\x04", 9), 1},
        {"AnotherRoot", "<settings><add key=\"ServerPort\" value=\"2000\"/></settings>", 0},
        {"NotUtf8", after(whole, "value=\"", "\xFF\xFE\x80"), 4},
        {"EndTagsExchanged", "<configuration><appSettings></configuration></appSettings>", 1},
        {"DocumentType", after(whole, "?>", "<!DOCTYPE configuration [<!ELEMENT configuration ANY>]>"), 1},
        {"ExternalEntity",
         after(after(whole, "?>",
                     "<!DOCTYPE configuration [<!ENTITY secret SYSTEM "
                     "\"file:///C:/windows/win.ini\">]>"),
               "value=\"", "&secret;"),
         1},
        {"EntityBomb",
         after(after(whole, "?>",
                     "<!DOCTYPE configuration [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;&a;&a;\">]>"),
               "value=\"", "&b;"),
         1},
        {"UndeclaredEntity", after(whole, "value=\"", "&secret;"), 4},
    };
}

class BrokenConfiguration : public BrokenFile, public testing::WithParamInterface<BrokenContent>
{
};

TEST_P(BrokenConfiguration, isReportedOnceAndKeptAsItIs)
{
    ServerFiles::write(ServerFiles::configuration(), GetParam().content);
    expectDefaultsAfterOneReport(GetParam().line);
    expectRefusedEdit(L"1099", GetParam().line);
    expectRefusedReset(GetParam().line);
    EXPECT_TRUE(GetParam().content == ServerFiles::read(ServerFiles::configuration()));
}

INSTANTIATE_TEST_SUITE_P(Contents, BrokenConfiguration, testing::ValuesIn(brokenContents()),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(BrokenFile, thatWasRepairedIsReadAndWrittenAgain)
{
    ServerFiles::write(ServerFiles::configuration(), "<configuration>");
    expectDefaultsAfterOneReport();
    store(L"ServerBacklog", "9");
    view().select(listener);
    typeAndConfirm(L"2099");
    view().doubleClick(L"Port");
    EXPECT_EQ(L"2099", ServerFiles::setting(L"ServerPort"));
    EXPECT_EQ(L"9", ServerFiles::setting(L"ServerBacklog"));
}

TEST_F(BrokenFile, thatIsLockedByAnotherProgram)
{
    store(L"ServerPort", "2000");
    const std::string bytes = ServerFiles::read(ServerFiles::configuration());
    {
        const ServerFiles::Lock lock(ServerFiles::configuration());
        expectDefaultsAfterOneReport();
        expectRefusedEdit(L"1099");
    }
    EXPECT_EQ(bytes, ServerFiles::read(ServerFiles::configuration()));
}

TEST_F(BrokenFile, thatIsLockedOnlyWhileAnEditIsConfirmed)
{
    store(L"ServerPort", "2000");
    const std::string bytes = ServerFiles::read(ServerFiles::configuration());
    openAt(listener);
    {
        const ServerFiles::Lock lock(ServerFiles::configuration());
        expectRefusedEdit(L"2000");
    }
    EXPECT_EQ(bytes, ServerFiles::read(ServerFiles::configuration()));
    typeAndConfirm(L"2099");
    view().doubleClick(L"Port");
    EXPECT_EQ(L"2099", ServerFiles::setting(L"ServerPort"));
}

TEST_F(BrokenFile, thatIsReadOnlyIsShownAndNotWritten)
{
    store(L"ServerPort", "2000");
    const std::string bytes = ServerFiles::read(ServerFiles::configuration());
    SetFileAttributesW(ServerFiles::configuration().c_str(), FILE_ATTRIBUTE_READONLY);
    openAt(listener);
    EXPECT_EQ(L"2000", view().cell(L"Port", L"Value"));
    expectRefusedEdit(L"2000");
    expectRefusedReset();
    EXPECT_EQ(bytes, ServerFiles::read(ServerFiles::configuration()));
    EXPECT_NE(0u, GetFileAttributesW(ServerFiles::configuration().c_str()) & FILE_ATTRIBUTE_READONLY);
}

TEST_F(BrokenFile, thatIsAFolder)
{
    std::filesystem::create_directories(ServerFiles::configuration());
    openAt(listener);
    EXPECT_EQ(L"1099", view().cell(L"Port", L"Value"));
    expectRefusedEdit(L"1099");
    EXPECT_TRUE(std::filesystem::is_directory(ServerFiles::configuration()));
}

} // namespace
} // namespace Acceptance
