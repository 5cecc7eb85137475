#include "fonts_logs/FontsTest.h"
#include "kit/windows.h"

namespace Acceptance
{
namespace
{

// What changes leave in Fonts.config, byte for byte, and what becomes of one that cannot be read or written.
class FontsFile : public FontsTest
{
  protected:
    void SetUp() override
    {
        FontsTest::SetUp();
        Registry::preferRestart(false);
    }

    static std::string bytes() { return ServerFiles::read(file()); }

    // A confirmed entry is refused with one report.
    void expectRefusedAdd(std::source_location where = std::source_location::current())
    {
        recorder.forgetCalls();
        enter({.family = L"New", .file = L"new.ttf"}, where);
        fileReport(where);
        view().runNodeCommand(node, addCommand);
        robot.finish();
        EXPECT_TRUE(recorder.calls(L"IConsole::UpdateAllViews").empty());
    }
};

// A file that others write to as well: comments, elements and keys of their own, an order, a byte order mark.
constexpr char before[] = "\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n"
                          "<!-- edited by hand: do not touch -->\r\n"
                          "<configuration>\r\n"
                          "  <runtime><gc enabled=\"true\"/>text &amp; more</runtime>\r\n"
                          "  <appSettings>\r\n"
                          "    <add key=\"MapAlias:HELV\" value=\"ARIAL &amp; \xF0\x9F\x98\x80\"/>\r\n"
                          "    <!-- the font -->\r\n";
constexpr char after[] = "\t<add key=\"MapAlias:COUR-BOLD\" value=\"\"/>\r\n"
                         "  </appSettings>\r\n"
                         "  <tail/>\r\n"
                         "</configuration>\r\n"
                         "<!-- end -->\r\n";

std::string fileWith(const std::string& line)
{
    return before + line + after;
}

TEST_F(FontsFile, losesNothingButTheEntryThatIsDeleted)
{
    ServerFiles::write(file(), fileWith("    <add key=\"MapFont:A\" value=\"a\"/>\r\n"));
    openNode();
    view().pressDelete(L"A");
    EXPECT_EQ(fileWith(""), bytes());
}

TEST_F(FontsFile, isTheSameAgainAfterAFontWasAddedEditedAndDeleted)
{
    ServerFiles::write(file(), fileWith(""));
    openNode();
    add({.family = L"A", .file = L"a"});
    edit(L"A", {.family = L"B", .file = L"b", .bold = true});
    EXPECT_EQ(L"b", stored(L"MapFont:B-BOLD"));
    view().pressDelete(L"B");
    EXPECT_EQ(fileWith(""), bytes());
}

TEST_F(FontsFile, changesNothingButTheValueOfAnExistingKey)
{
    ServerFiles::write(file(), fileWith("    <add key=\"MapFont:A\" value=\"a\"/>\r\n"));
    openNode();
    add({.family = L"A", .file = L"b"});
    EXPECT_EQ(fileWith("    <add key=\"MapFont:A\" value=\"b\"/>\r\n"), bytes());
}

TEST_F(FontsFile, isMadeWithItsFolderByTheFirstFont)
{
    openNode();
    ASSERT_FALSE(std::filesystem::exists(ServerFiles::folder()));
    add({.family = L"A", .file = L"<a>"});
    std::string made = bytes();
    std::erase(made, '\r');
    EXPECT_EQ("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
              "<configuration>\n"
              "  <appSettings>\n"
              "    <add key=\"MapFont:A\" value=\"&lt;a&gt;\"/>\n"
              "  </appSettings>\n"
              "</configuration>\n",
              made);
}

struct BrokenFonts
{
    const char* name;
    std::string content;
};

void PrintTo(const BrokenFonts& broken, std::ostream* out)
{
    *out << broken.name;
}

class BrokenFontsFile : public FontsFile, public testing::WithParamInterface<BrokenFonts>
{
};

TEST_P(BrokenFontsFile, isReportedOnceShownEmptyAndKeptAsItIs)
{
    ServerFiles::write(file(), GetParam().content);
    fileReport();
    ASSERT_NO_FATAL_FAILURE(open());
    robot.finish();
    view().select(node);
    EXPECT_TRUE(view().rows().empty());
    expectRefusedAdd();
    view().select(L"Log");
    view().select(node);
    EXPECT_TRUE(GetParam().content == bytes());
}

INSTANTIATE_TEST_SUITE_P(
    Contents, BrokenFontsFile,
    testing::Values(BrokenFonts{"CutOff", "<configuration><appSettings><add key=\"MapFont:A\" val"},
                    BrokenFonts{"NotXml", "MapFont:A=a\r\n"},
                    BrokenFonts{"AnotherRoot", "<fonts><add key=\"MapFont:A\" value=\"a\"/></fonts>"},
                    BrokenFonts{"DocumentType", "<!DOCTYPE configuration [<!ELEMENT configuration "
                                                "ANY>]><configuration/>"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(FontsFile, thatWasRepairedIsReadAndWrittenAgain)
{
    ServerFiles::write(file(), "<configuration>");
    fileReport();
    openNode();
    robot.finish();
    store({{L"MapFont:A", L"a"}});
    view().select(node);
    EXPECT_EQ(L"a", view().cell(L"A", L"Font File Path"));
    add({.family = L"B", .file = L"b"});
    EXPECT_EQ((Entries{{L"MapFont:A", L"a"}, {L"MapFont:B", L"b"}}), stored());
}

TEST_F(FontsFile, thatBreaksAgainIsReportedAgain)
{
    openNode();
    ServerFiles::write(file(), "<configuration>");
    fileReport();
    view().select(node);
    robot.finish();
    view().select(node);
    store({});
    view().select(node);
    ServerFiles::write(file(), "<configuration>");
    fileReport();
    view().select(node);
}

TEST_F(FontsFile, thatBreaksBeforeAnEditOrADeletionIsConfirmedIsKeptAsItIs)
{
    store({{L"MapFont:A", L"a"}});
    openNode();
    editor(
        [](ModalWindow& dialog)
        {
            ServerFiles::write(file(), "<configuration>");
            dialog.setChecked(FontEditor::restart, true);
            dialog.press(IDOK);
        });
    fileReport();
    view().doubleClick(L"A");
    robot.finish();
    EXPECT_EQ("<configuration>", bytes());
    EXPECT_EQ((Registry::Value{REG_SZ, L"false"}), Registry::restartPreference()) << "refused as a whole";
    fileReport();
    view().pressDelete(L"A");
    EXPECT_EQ("<configuration>", bytes());
    EXPECT_EQ(1, view().view().rowCount()) << "nothing happened";
}

TEST_F(FontsFile, thatIsReadOnlyIsShownAndNotWritten)
{
    store({{L"MapFont:A", L"a"}});
    const std::string content = bytes();
    SetFileAttributesW(file().c_str(), FILE_ATTRIBUTE_READONLY);
    openNode();
    EXPECT_EQ(L"a", view().cell(L"A", L"Font File Path"));
    expectRefusedAdd();
    editor([](ModalWindow& dialog) { dialog.press(IDOK); });
    fileReport();
    view().doubleClick(L"A");
    fileReport();
    view().pressDelete(L"A");
    EXPECT_EQ(content, bytes());
    EXPECT_NE(0u, GetFileAttributesW(file().c_str()) & FILE_ATTRIBUTE_READONLY);
}

TEST_F(FontsFile, thatIsLockedIsReportedAndNotWritten)
{
    store({{L"MapFont:A", L"a"}});
    const std::string content = bytes();
    {
        const ServerFiles::Lock lock(file());
        fileReport();
        openNode();
        robot.finish();
        EXPECT_TRUE(view().rows().empty());
        expectRefusedAdd();
    }
    EXPECT_EQ(content, bytes());
}

TEST_F(FontsFile, isReportedByItselfWhereTheSettingsAreBrokenToo)
{
    ServerFiles::write(ServerFiles::configuration(), "<configuration>");
    ServerFiles::write(file(), "<configuration>");
    robot.messageThat([](const MessageBoxSeen& box)
                      { EXPECT_NE(std::wstring::npos, box.text.find(ServerFiles::configuration().wstring())); });
    fileReport();
    openNode();
}

} // namespace
} // namespace Acceptance
