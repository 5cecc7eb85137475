#include "kit/windows.h"
#include "settings/SettingsTest.h"

namespace Acceptance
{
namespace
{

// What all editors have in common, tried with each setting.
class SettingEditor : public SettingsTest, public testing::WithParamInterface<Setting>
{
  protected:
    const Setting& setting() const { return GetParam(); }

    // Brings the editor to another value than it opened with.
    static void chooseOther(const Setting& setting, ModalWindow& dialog)
    {
        switch (setting.kind)
        {
        case Setting::Kind::boolean:
            dialog.setChecked(setting.otherValue == L"true" ? Editor::isTrue : Editor::isFalse, true);
            break;
        case Setting::Kind::enumeration:
            for (std::size_t i = 0; i < setting.options.size(); ++i)
            {
                if (setting.options[i].value == setting.otherValue)
                {
                    dialog.setChecked(Editor::firstOption + static_cast<int>(i), true);
                }
            }
            break;
        default:
            dialog.type(Editor::value, setting.otherValue);
        }
    }

    void expectRow(const std::wstring& value, const wchar_t* isDefault)
    {
        EXPECT_EQ(setting().shown(value), view().cell(setting().name, L"Value"));
        EXPECT_EQ(isDefault, view().cell(setting().name, L"Is Default"));
        EXPECT_EQ(setting().defaultValue, view().cell(setting().name, L"Default Value"));
    }
};

// Proves: PropertyItem on a double-click.
TEST_P(SettingEditor, opensWithNameDescriptionAndTheRestartCheckedOnAFreshMachine)
{
    openAt(setting().node);
    editor(
        [this](ModalWindow& dialog)
        {
            EXPECT_FALSE(IsWindowEnabled(frame.handle())) << "the editor is modal";
            EXPECT_EQ(setting().name, dialog.text(Editor::name));
            EXPECT_TRUE(dialog.readOnly(Editor::name));
            EXPECT_EQ(setting().description, dialog.text(Editor::description));
            EXPECT_TRUE(dialog.readOnly(Editor::description));
            EXPECT_EQ(L"Restart the service to apply changes.", dialog.text(Editor::restart));
            EXPECT_TRUE(dialog.checked(Editor::restart));
            EXPECT_EQ(L"OK", dialog.text(IDOK));
            EXPECT_EQ(L"Cancel", dialog.text(IDCANCEL));
            EXPECT_EQ(L"Re&set to default", dialog.text(Editor::reset));
            dialog.press(IDCANCEL);
        });
    view().doubleClick(setting().name);
}

TEST_P(SettingEditor, storesAnotherValue)
{
    Registry::preferRestart(false);
    openAt(setting().node);
    editor(
        [this](ModalWindow& dialog)
        {
            chooseOther(setting(), dialog);
            dialog.press(IDOK);
        });
    view().doubleClick(setting().name);
    EXPECT_EQ(setting().otherValue, ServerFiles::setting(setting().key));
    expectRow(setting().otherValue, L"No");
}

TEST_P(SettingEditor, isReachedByTheCommandToo)
{
    Registry::preferRestart(false);
    openAt(setting().node);
    editor(
        [this](ModalWindow& dialog)
        {
            chooseOther(setting(), dialog);
            dialog.press(IDOK);
        });
    view().runCommand(setting().name, L"&Edit Property");
    EXPECT_EQ(setting().otherValue, ServerFiles::setting(setting().key));
    expectRow(setting().otherValue, L"No");
}

TEST_P(SettingEditor, storesTheDefaultExplicitlyWhenItIsConfirmed)
{
    Registry::preferRestart(false);
    openAt(setting().node);
    editor([](ModalWindow& dialog) { dialog.press(IDOK); });
    view().doubleClick(setting().name);
    EXPECT_EQ(setting().defaultValue, ServerFiles::setting(setting().key));
    expectRow(setting().defaultValue, L"No");
}

TEST_P(SettingEditor, deletesTheKeyOnReset)
{
    Registry::preferRestart(false);
    store(setting().key, narrow(setting().otherValue));
    openAt(setting().node);
    editor([](ModalWindow& dialog) { dialog.press(Editor::reset); });
    view().doubleClick(setting().name);
    EXPECT_EQ(std::nullopt, ServerFiles::setting(setting().key));
    expectRow(setting().defaultValue, L"Yes");
}

TEST_P(SettingEditor, makesTheFileOnResetWithoutTheKey)
{
    Registry::preferRestart(false);
    openAt(setting().node);
    editor([](ModalWindow& dialog) { dialog.press(Editor::reset); });
    view().doubleClick(setting().name);
    ASSERT_TRUE(configurationExists());
    EXPECT_EQ(std::nullopt, ServerFiles::setting(setting().key));
    expectRow(setting().defaultValue, L"Yes");
}

TEST_P(SettingEditor, leavesEverythingAloneWhenItIsCancelled)
{
    openAt(setting().node);
    recorder.forgetCalls();
    const auto cancelWith = [this](auto leave)
    {
        editor(
            [this, leave](ModalWindow& dialog)
            {
                chooseOther(setting(), dialog);
                dialog.setChecked(Editor::restart, false);
                leave(dialog);
            });
        view().doubleClick(setting().name);
    };
    cancelWith([](ModalWindow& dialog) { dialog.press(IDCANCEL); });
    cancelWith([](ModalWindow& dialog) { dialog.key(VK_ESCAPE); });
    cancelWith([](ModalWindow& dialog) { dialog.close(); });
    EXPECT_FALSE(configurationExists()) << "not even the value that it opened with is written";
    EXPECT_EQ(std::nullopt, Registry::restartPreference());
    EXPECT_TRUE(recorder.calls(L"IConsole::UpdateAllViews").empty());
    expectRow(setting().defaultValue, L"Yes");
}

TEST_P(SettingEditor, confirmsWithTheEnterKey)
{
    Registry::preferRestart(false);
    openAt(setting().node);
    editor([](ModalWindow& dialog) { dialog.key(VK_RETURN); });
    view().doubleClick(setting().name);
    EXPECT_EQ(setting().defaultValue, ServerFiles::setting(setting().key));
}

INSTANTIATE_TEST_SUITE_P(Settings, SettingEditor, testing::ValuesIn(allSettings()),
                         [](const auto& info) { return narrow(info.param.key); });

} // namespace
} // namespace Acceptance
