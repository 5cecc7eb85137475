#include "kit/windows.h"
#include "settings/SettingsTest.h"

namespace Acceptance
{
namespace
{

using Cells = std::vector<std::wstring>;

Cells expectedRow(const Setting& setting, const std::wstring& value, const wchar_t* isDefault)
{
    return {setting.name, setting.shown(value), isDefault, setting.description, setting.defaultValue};
}

class SettingsRows : public SettingsTest
{
  protected:
    // The rows of the node's settings, as they have to be without a configuration file.
    static std::vector<Cells> defaultRows(const std::wstring& node)
    {
        std::vector<Cells> rows;
        for (const Setting& setting : allSettings())
        {
            if (setting.node == node)
            {
                rows.push_back(expectedRow(setting, setting.defaultValue, L"Yes"));
            }
        }
        return rows;
    }

    void expectDefaultRows(const std::wstring& node)
    {
        view().select(node);
        std::vector<Cells> rows = view().rows();
        std::erase_if(rows, [](const Cells& row) { return row.front() == L"Log Files"; });
        EXPECT_EQ(defaultRows(node), rows);
    }
};

TEST_F(SettingsRows, everyGroupHasItsRowsInOrderWithoutAConfigurationFile)
{
    open();
    for (const wchar_t* node : {listener, encoder, log})
    {
        expectDefaultRows(node);
    }
    EXPECT_FALSE(configurationExists()) << "reading makes no file";
}

TEST_F(SettingsRows, anEmptyConfigurationFileIsAnEmptyStore)
{
    ServerFiles::write(ServerFiles::configuration(), "");
    open();
    for (const wchar_t* node : {listener, encoder, log})
    {
        expectDefaultRows(node);
    }
}

TEST_F(SettingsRows, everyGroupHasTheFiveColumns)
{
    const std::vector<ConsoleView::Column> columns{
        {L"Property", 150}, {L"Value", 100}, {L"Is Default", 50}, {L"Description", 300}, {L"Default Value", 100}};
    open();
    for (const wchar_t* node : {listener, encoder, log})
    {
        view().select(node);
        EXPECT_EQ(columns, view().columns()) << narrow(node);
        EXPECT_FALSE(view().view().sortable()) << narrow(node);
    }
}

TEST_F(SettingsRows, theLogNodeListsItsLogFilesNodeToo)
{
    openAt(log);
    EXPECT_EQ(4u, view().rows().size());
    EXPECT_EQ(view().node(L"Log\\Log Files"), view().view().rowNode(view().indexOf(L"Log Files")));
}

TEST_F(SettingsRows, theRowsAreGoneWhenAnotherNodeIsShownAndComeBack)
{
    openAt(listener);
    view().select(encoder);
    EXPECT_EQ(defaultRows(encoder), view().rows());
    view().select(listener);
    EXPECT_EQ(defaultRows(listener), view().rows());
}

TEST_F(SettingsRows, aRowCannotBeDeleted)
{
    store(L"ServerPort", "2000");
    openAt(listener);
    EXPECT_FALSE(view().canDelete(L"Port"));
    view().pressDelete(L"Port");
    EXPECT_EQ(L"2000", view().cell(L"Port", L"Value"));
}

TEST_F(SettingsRows, keysThatOtherProgramsUseAreNotShown)
{
    ServerFiles::write(ServerFiles::configuration(),
                       ServerFiles::configurationWith("    <add key=\"KeystoreFile\" value=\"C:\\k.p12\"/>\r\n"
                                                      "    <add key=\"DefaultFontFamily\" value=\"Times\"/>\r\n"
                                                      "    <add key=\"serverport\" value=\"7\"/>\r\n"));
    open();
    for (const wchar_t* node : {listener, encoder, log})
    {
        expectDefaultRows(node);
    }
}

TEST_F(SettingsRows, changesByOthersAreSeenOnlyWhereARowIsLoadedAgain)
{
    Registry::preferRestart(false);
    openAt(listener);
    ServerFiles::write(ServerFiles::configuration(),
                       ServerFiles::configurationWith("    <add key=\"ServerPort\" value=\"3000\"/>\r\n"
                                                      "    <add key=\"ServerBacklog\" value=\"9\"/>\r\n"));
    view().select(encoder);
    view().select(listener);
    EXPECT_EQ(L"1099", view().cell(L"Port", L"Value"));

    typeAndConfirm(L"8");
    view().doubleClick(L"Backlog");
    EXPECT_EQ(L"8", view().cell(L"Backlog", L"Value"));
    EXPECT_EQ(L"1099", view().cell(L"Port", L"Value"));
    EXPECT_EQ(L"3000", ServerFiles::setting(L"ServerPort")) << "a stale value must not come back";
}

class EverySetting : public SettingsRows, public testing::WithParamInterface<Setting>
{
};

// Proves: it speaks of two log levels, and four are offered.
TEST_P(EverySetting, showsItsStoredValue)
{
    const Setting& setting = GetParam();
    store(setting.key, narrow(setting.otherValue));
    openAt(setting.node);
    EXPECT_EQ(expectedRow(setting, setting.otherValue, L"No"), view().row(setting.name));
}

TEST_P(EverySetting, isNotDefaultWhenTheDefaultIsStored)
{
    const Setting& setting = GetParam();
    store(setting.key, narrow(setting.defaultValue));
    openAt(setting.node);
    EXPECT_EQ(expectedRow(setting, setting.defaultValue, L"No"), view().row(setting.name));
}

TEST_P(EverySetting, offersOneCommand)
{
    openAt(GetParam().node);
    EXPECT_EQ(Cells{L"&Edit Property"}, view().menu(GetParam().name));
}

INSTANTIATE_TEST_SUITE_P(Settings, EverySetting, testing::ValuesIn(allSettings()),
                         [](const auto& info) { return narrow(info.param.key); });

} // namespace
} // namespace Acceptance
