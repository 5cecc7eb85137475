#include "CommandLine.h"

#include <gtest/gtest.h>

using namespace Console;

namespace
{

struct Wrong
{
    const char* name;
    std::vector<std::wstring> arguments;
    const wchar_t* message;
};

std::wstring messageOf(const std::vector<std::wstring>& arguments)
{
    try
    {
        parseCommandLine(arguments);
    }
    catch (const UsageError& wrong)
    {
        return wrong.message;
    }
    return L"(accepted)";
}

} // namespace

TEST(CommandLine, WithoutArgumentsOpensTheWindowOfTheDefaultSnapIn)
{
    const CommandLine line = parseCommandLine({});

    EXPECT_EQ(line.mode, CommandLine::Mode::window);
    EXPECT_FALSE(line.unattended());
    wchar_t text[40];
    StringFromGUID2(line.snapIn, text, 40);
    EXPECT_STREQ(text, L"{B86BF80B-252D-44CD-8D11-D8EA4C1702ED}");
}

TEST(CommandLine, TakesEveryOption)
{
    const CommandLine line = parseCommandLine(
        {L"--snapin", L"{00000000-0000-0000-C000-000000000046}", L"--select",
         L"Engine Settings\\Listener Configuration", L"--row", L"Port", L"--command", L"1000", L"--press", L"12324",
         L"--enter", L"1003=a=b", L"--screenshot", L"C:\\p.png", L"--size", L"800x600", L"--trace", L"t.txt"});

    EXPECT_EQ(line.mode, CommandLine::Mode::screenshot);
    EXPECT_TRUE(line.unattended());
    EXPECT_EQ(line.snapIn, IID_IUnknown);
    EXPECT_EQ(line.select, (NodePath{L"Engine Settings", L"Listener Configuration"}));
    EXPECT_EQ(line.row, L"Port");
    EXPECT_EQ(line.command, L"1000");
    const std::vector<DialogStep> steps{{12324, std::nullopt}, {1003, L"a=b"}};
    EXPECT_EQ(line.steps, steps);
    EXPECT_EQ(line.screenshot, L"C:\\p.png");
    EXPECT_EQ(line.trace, L"t.txt");
    ASSERT_TRUE(line.size);
    EXPECT_EQ(line.size->cx, 800);
    EXPECT_EQ(line.size->cy, 600);
}

TEST(CommandLine, ListingsAreUnattended)
{
    EXPECT_EQ(parseCommandLine({L"--list"}).mode, CommandLine::Mode::list);
    EXPECT_EQ(parseCommandLine({L"--json"}).mode, CommandLine::Mode::json);
    EXPECT_TRUE(parseCommandLine({L"--list"}).unattended());
}

TEST(CommandLine, HelpWinsOverEverythingElse)
{
    for (const wchar_t* help : {L"--help", L"-h", L"-?", L"/?"})
    {
        EXPECT_EQ(parseCommandLine({L"--nonsense", help}).mode, CommandLine::Mode::help);
    }
}

class WrongCommandLine : public testing::TestWithParam<Wrong>
{
};

TEST_P(WrongCommandLine, IsRefusedWithASentence)
{
    EXPECT_EQ(messageOf(GetParam().arguments), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    All, WrongCommandLine,
    testing::Values(
        Wrong{"UnknownOption", {L"--lost"}, L"\"--lost\" is not an option of this program."},
        Wrong{"LooseWord", {L"word"}, L"\"word\" is not an option of this program."},
        Wrong{"MissingValue", {L"--select"}, L"--select needs a value."},
        Wrong{"NoClassId",
              {L"--snapin", L"TMgmt.MMCSnapIn"},
              L"\"TMgmt.MMCSnapIn\" is not a class id of the form {xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx}."},
        Wrong{"CutClassId",
              {L"--snapin", L"{B86BF80B"},
              L"\"{B86BF80B\" is not a class id of the form {xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx}."},
        Wrong{"TwoModes", {L"--list", L"--json"}, L"Only one of --list, --json and --screenshot can be given."},
        Wrong{"ListAndPicture",
              {L"--screenshot", L"a.png", L"--list"},
              L"Only one of --list, --json and --screenshot can be given."},
        Wrong{"EmptyName", {L"--select", L"a\\"}, L"\"a\\\" is not a path: there is an empty name in it."},
        Wrong{"SizeWithoutCross",
              {L"--size", L"800"},
              L"\"800\" is not a size of the form 1024x768 (100 to 10000 pixels each way)."},
        Wrong{"SizeTooSmall",
              {L"--size", L"800x99"},
              L"\"800x99\" is not a size of the form 1024x768 (100 to 10000 pixels each way)."},
        Wrong{"SizeTooLarge",
              {L"--size", L"99999999999x600"},
              L"\"99999999999x600\" is not a size of the form 1024x768 (100 to 10000 pixels each way)."},
        Wrong{"SizeNegative",
              {L"--size", L"-800x600"},
              L"\"-800x600\" is not a size of the form 1024x768 (100 to 10000 pixels each way)."},
        Wrong{"RowInListing",
              {L"--list", L"--row", L"Port"},
              L"--row and --size belong to the window; they cannot be given with --list or --json."},
        Wrong{"CommandWithoutPicture", {L"--command", L"1000"}, L"--command can only be given with --screenshot."},
        Wrong{"PressWithoutCommand",
              {L"--screenshot", L"a.png", L"--press", L"1"},
              L"--press and --enter need a dialog: give --command too."},
        Wrong{"PressNoNumber", {L"--press", L"OK"}, L"\"OK\" is not the number of a control (0 to 65535)."},
        Wrong{"PressTooLarge", {L"--press", L"65536"}, L"\"65536\" is not the number of a control (0 to 65535)."},
        Wrong{"EnterWithoutText", {L"--enter", L"12"}, L"\"12\" is not of the form ID=TEXT."}),
    [](const auto& info) { return info.param.name; });
