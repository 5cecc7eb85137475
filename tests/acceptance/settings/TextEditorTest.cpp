#include "kit/windows.h"
#include "settings/SettingsTest.h"

namespace Acceptance
{
namespace
{

// The free-text editor: addresses and folders, whole numbers, ports.
class TextEditor : public SettingsTest
{
  protected:
    void SetUp() override
    {
        SettingsTest::SetUp();
        Registry::preferRestart(false);
    }

    // Opens the row's editor, types, confirms, and returns what is stored then.
    std::optional<std::wstring> storedAfterTyping(const std::wstring& row, const std::wstring& key,
                                                  const std::wstring& text)
    {
        typeAndConfirm(text);
        view().doubleClick(row);
        return ServerFiles::setting(key);
    }
};

class TextEditorOpening : public TextEditor, public testing::WithParamInterface<Setting>
{
};

std::vector<Setting> freeTextSettings()
{
    std::vector<Setting> settings = allSettings();
    std::erase_if(settings, [](const Setting& setting)
                  { return setting.kind == Setting::Kind::boolean || setting.kind == Setting::Kind::enumeration; });
    return settings;
}

TEST_P(TextEditorOpening, showsTheValueWithTheFocusInItAndNoUnit)
{
    const Setting& setting = GetParam();
    store(setting.key, narrow(setting.otherValue));
    openAt(setting.node);
    editor(
        [&](ModalWindow& dialog)
        {
            EXPECT_EQ(setting.otherValue, dialog.text(Editor::value));
            EXPECT_FALSE(dialog.readOnly(Editor::value));
            EXPECT_EQ(Editor::value, dialog.focus());
            EXPECT_EQ(L"", dialog.text(Editor::unit));
            dialog.press(IDCANCEL);
        });
    view().doubleClick(setting.name);
}

INSTANTIATE_TEST_SUITE_P(Settings, TextEditorOpening, testing::ValuesIn(freeTextSettings()),
                         [](const auto& info) { return narrow(info.param.key); });

TEST_F(TextEditor, showsTheDefaultWhereNothingIsStored)
{
    openAt(log);
    editor(
        [](ModalWindow& dialog)
        {
            EXPECT_EQ(L"%APP_DATA%\\Brimlow\\Log\\", dialog.text(Editor::value));
            dialog.press(IDCANCEL);
        });
    view().doubleClick(L"Log Folder");
}

TEST_F(TextEditor, storesAnyTextAsTyped)
{
    openAt(listener);
    for (const wchar_t* text : {L"fe80::1%eth0", L"no address at all", L"  blanks stay  ", L"<&\"'>",
                                L"\u00FC\u4E2D\U0001F600", L"%APP_DATA%", L""})
    {
        EXPECT_EQ(text, storedAfterTyping(L"IP Address", L"ServerAddress", text)) << narrow(text);
        EXPECT_EQ(text, view().cell(L"IP Address", L"Value"));
        EXPECT_EQ(L"No", view().cell(L"IP Address", L"Is Default"));
    }
}

TEST_F(TextEditor, storesAnIntegerNormalisedAndNeverComplains)
{
    openAt(listener);
    const std::vector<std::pair<std::wstring, std::wstring>> cases{
        {L"128", L"128"}, {L"abc", L"0"}, {L"0050", L"50"}, {L"", L"0"},   {L"  12 34", L"12"},
        {L"-7x", L"-7"},  {L"+7", L"7"},  {L"3.9", L"3"},   {L"-0", L"0"}, {L"- 5", L"0"},
    };
    for (const auto& [typed, stored] : cases)
    {
        EXPECT_EQ(stored, storedAfterTyping(L"Backlog", L"ServerBacklog", typed)) << narrow(typed);
        EXPECT_EQ(stored, view().cell(L"Backlog", L"Value"));
    }
}

TEST_F(TextEditor, acceptsPortsFrom1000To65535AndDropsLeadingZeros)
{
    openAt(listener);
    const std::vector<std::pair<std::wstring, std::wstring>> cases{
        {L"1000", L"1000"}, {L"65535", L"65535"}, {L"01099", L"1099"}, {L"0002099", L"2099"}};
    for (const auto& [typed, stored] : cases)
    {
        EXPECT_EQ(stored, storedAfterTyping(L"Port", L"ServerPort", typed)) << narrow(typed);
        EXPECT_EQ(stored, view().cell(L"Port", L"Value"));
    }
}

class RefusedPort : public TextEditor
{
  protected:
    // Types each text into one open editor; each is refused with that message and stays for correction.
    void expectRefused(const std::vector<std::wstring>& texts, const wchar_t* message)
    {
        openAt(listener);
        std::wstring before = L"1099";
        for (const std::wstring& text : texts)
        {
            editor(
                [text, before](ModalWindow& dialog)
                {
                    EXPECT_EQ(before, dialog.text(Editor::value)) << "a refused text stays";
                    dialog.type(Editor::value, text);
                    dialog.press(IDOK);
                });
            refusal(message, MB_ICONEXCLAMATION);
            before = text;
        }
        editor(
            [before](ModalWindow& dialog)
            {
                EXPECT_EQ(before, dialog.text(Editor::value));
                EXPECT_EQ(IDOK, dialog.focus()) << "the focus is not moved";
                dialog.press(IDCANCEL);
            });
        view().doubleClick(L"Port");
        robot.finish();
        EXPECT_FALSE(configurationExists());
        EXPECT_EQ(L"1099", view().cell(L"Port", L"Value"));
    }
};

TEST_F(RefusedPort, outsideTheRange)
{
    expectRefused({L"999", L"65536", L"80", L"0", L"", L"000999", L"99999999999999999999"},
                  L"Please enter a port number between 1000 and 65535.");
}

TEST_F(RefusedPort, notAllDigits)
{
    expectRefused(
        {L"10 99", L"-1099", L"+2000", L" 2000", L"2000 ", L"2000x", L"20.00", L"0x7D0", L"\uFF12\uFF10\uFF10\uFF10"},
        L"Please enter a valid port number.");
}

TEST_F(RefusedPort, leavesTheFocusInTheFieldWhenEnterWasPressedThere)
{
    openAt(listener);
    editor(
        [](ModalWindow& dialog)
        {
            dialog.type(Editor::value, L"80");
            dialog.key(VK_RETURN);
        });
    refusal(L"Please enter a port number between 1000 and 65535.", MB_ICONEXCLAMATION);
    editor(
        [](ModalWindow& dialog)
        {
            EXPECT_EQ(L"80", dialog.text(Editor::value));
            EXPECT_EQ(Editor::value, dialog.focus());
            dialog.press(IDCANCEL);
        });
    view().doubleClick(L"Port");
}

TEST_F(RefusedPort, canBeCorrected)
{
    openAt(listener);
    typeAndConfirm(L"999");
    refusal(L"Please enter a port number between 1000 and 65535.", MB_ICONEXCLAMATION);
    typeAndConfirm(L"9990");
    view().doubleClick(L"Port");
    EXPECT_EQ(L"9990", ServerFiles::setting(L"ServerPort"));
}

TEST_F(RefusedPort, doesNotKeepResetFromDeletingTheKey)
{
    store(L"ServerPort", "2000");
    openAt(listener);
    typeAndConfirm(L"none");
    refusal(L"Please enter a valid port number.", MB_ICONEXCLAMATION);
    editor([](ModalWindow& dialog) { dialog.press(Editor::reset); });
    view().doubleClick(L"Port");
    EXPECT_EQ(std::nullopt, ServerFiles::setting(L"ServerPort"));
    EXPECT_EQ(L"1099", view().cell(L"Port", L"Value"));
}

} // namespace
} // namespace Acceptance
