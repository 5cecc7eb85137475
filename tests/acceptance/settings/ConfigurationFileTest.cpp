#include "kit/ImportSpy.h"
#include "settings/SettingsTest.h"

#include <wrl/client.h>

namespace Acceptance
{
namespace
{

// What an edit leaves in TSvc.config, byte for byte.
class ConfigurationFile : public SettingsTest
{
  protected:
    void SetUp() override
    {
        SettingsTest::SetUp();
        Registry::preferRestart(false);
    }

    void editPort(const wchar_t* text)
    {
        typeAndConfirm(text);
        view().doubleClick(L"Port");
    }
    void resetPort()
    {
        editor([](ModalWindow& dialog) { dialog.press(Editor::reset); });
        view().doubleClick(L"Port");
    }
    static std::string bytes() { return ServerFiles::read(ServerFiles::configuration()); }
};

// A file that others write to as well: comments, elements and keys of their own, an order, a byte order mark.
constexpr char before[] = "\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n"
                          "<!-- edited by hand: do not touch -->\r\n"
                          "<configuration>\r\n"
                          "  <runtime><gc enabled=\"true\"/>text &amp; more</runtime>\r\n"
                          "  <appSettings>\r\n"
                          "    <add key=\"Zebra\" value=\"&quot;quoted&quot; &lt;&amp;&gt; \xF0\x9F\x98\x80\"/>\r\n"
                          "    <!-- the port -->\r\n";
constexpr char after[] = "    <add key=\"serverport\" value=\"other key\"/>\r\n"
                         "\t<add key=\"Aardvark\" value=\"\"/>\r\n"
                         "  </appSettings>\r\n"
                         "  <tail/>\r\n"
                         "</configuration>\r\n"
                         "<!-- end -->\r\n";

std::string fileWith(const std::string& line)
{
    return before + line + after;
}

TEST_F(ConfigurationFile, changesNothingButTheValue)
{
    ServerFiles::write(ServerFiles::configuration(), fileWith("    <add key=\"ServerPort\" value=\"2000\"/>\r\n"));
    openAt(listener);
    editPort(L"2099");
    EXPECT_EQ(fileWith("    <add key=\"ServerPort\" value=\"2099\"/>\r\n"), bytes());
}

TEST_F(ConfigurationFile, losesNothingButTheKeyOnReset)
{
    ServerFiles::write(ServerFiles::configuration(), fileWith("    <add key=\"ServerPort\" value=\"2000\"/>\r\n"));
    openAt(listener);
    resetPort();
    EXPECT_EQ(fileWith(""), bytes());
}

TEST_F(ConfigurationFile, isTheSameAgainAfterAResetOfANewKey)
{
    ServerFiles::write(ServerFiles::configuration(), fileWith(""));
    openAt(listener);
    editPort(L"2099");
    EXPECT_EQ(L"2099", ServerFiles::setting(L"ServerPort"));
    resetPort();
    EXPECT_EQ(fileWith(""), bytes());
}

TEST_F(ConfigurationFile, isUntouchedByAResetOfAKeyThatIsNotThere)
{
    ServerFiles::write(ServerFiles::configuration(), fileWith(""));
    openAt(listener);
    resetPort();
    EXPECT_EQ(fileWith(""), bytes());
}

TEST_F(ConfigurationFile, getsANewKeyAfterAllOthers)
{
    ServerFiles::write(ServerFiles::configuration(),
                       ServerFiles::configurationWith("    <add key=\"Zebra\" value=\"1\"/>\r\n"));
    openAt(listener);
    editPort(L"2099");
    EXPECT_EQ(ServerFiles::configurationWith("    <add key=\"Zebra\" value=\"1\"/>\r\n"
                                             "    <add key=\"ServerPort\" value=\"2099\"/>\r\n"),
              bytes());
}

TEST_F(ConfigurationFile, isMadeWithItsFolderOnTheFirstWrite)
{
    openAt(listener);
    ASSERT_FALSE(std::filesystem::exists(ServerFiles::folder()));
    editPort(L"2099");
    std::string made = bytes();
    std::erase(made, '\r');
    EXPECT_EQ("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
              "<configuration>\n"
              "  <appSettings>\n"
              "    <add key=\"ServerPort\" value=\"2099\"/>\n"
              "  </appSettings>\n"
              "</configuration>\n",
              made);
}

TEST_F(ConfigurationFile, isWrittenIntoAnEmptyOne)
{
    ServerFiles::write(ServerFiles::configuration(), "");
    openAt(listener);
    editPort(L"2099");
    EXPECT_EQ(L"2099", ServerFiles::setting(L"ServerPort"));
}

TEST_F(ConfigurationFile, holdsCharactersThatXmlReserves)
{
    openAt(listener);
    typeAndConfirm(L"<a & \"b\" 'c'> \U0001F600");
    view().doubleClick(L"IP Address");
    EXPECT_NE(std::string::npos, bytes().find("&lt;a &amp; &quot;b&quot;"));
    EXPECT_NE(std::string::npos, bytes().find("\xF0\x9F\x98\x80"));
    close();
    openAt(listener);
    EXPECT_EQ(L"<a & \"b\" 'c'> \U0001F600", view().cell(L"IP Address", L"Value"));
}

TEST_F(ConfigurationFile, isLeftAloneInItsFolder)
{
    store(L"ServerPort", "2000");
    openAt(listener);
    editPort(L"2099");
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(ServerFiles::folder()))
    {
        files.push_back(entry.path().filename());
    }
    EXPECT_EQ(std::vector<std::filesystem::path>{L"TSvc.config"}, files);
}

TEST_F(ConfigurationFile, keepsWhatOthersWroteWhileTheEditorWasOpen)
{
    store(L"ServerPort", "2000");
    openAt(listener);
    editor(
        [](ModalWindow& dialog)
        {
            ServerFiles::write(ServerFiles::configuration(),
                               ServerFiles::configurationWith("    <add key=\"ServerPort\" value=\"2001\"/>\r\n"
                                                              "    <add key=\"New\" value=\"x\"/>\r\n"));
            dialog.type(Editor::value, L"2099");
            dialog.press(IDOK);
        });
    view().doubleClick(L"Port");
    EXPECT_EQ(ServerFiles::configurationWith("    <add key=\"ServerPort\" value=\"2099\"/>\r\n"
                                             "    <add key=\"New\" value=\"x\"/>\r\n"),
              bytes());
}

TEST_F(ConfigurationFile, isReadAndWrittenWhenItIsFiftyMegabytesLong)
{
    constexpr std::size_t size = 50 << 20;
    std::string lines = "    <add key=\"ServerPort\" value=\"2000\"/>\r\n    <add key=\"Large\" value=\"";
    lines.append(size, 'x').append("\"/>\r\n");
    ServerFiles::write(ServerFiles::configuration(), ServerFiles::configurationWith(lines));
    std::string expected = bytes();
    openAt(listener);
    EXPECT_EQ(L"2000", view().cell(L"Port", L"Value"));
    editPort(L"2099");
    expected.replace(expected.find("\"2000\""), 6, "\"2099\"");
    EXPECT_TRUE(expected == bytes()) << "more than the value has changed";
}

TEST_F(ConfigurationFile, isReadOnceForAllRowsAndOnceForTheLogFolderWhileTheTreeIsMade)
{
    store(L"ServerPort", "2000");
    open();
    int reads = 0;
    ImportSpy<"CreateFileW", decltype(CreateFileW)> files(
        [&](LPCWSTR path, auto... rest)
        {
            reads += std::filesystem::path(path).filename() == L"TSvc.config" ? 1 : 0;
            return files.callThrough(path, rest...);
        });

    Microsoft::WRL::ComPtr<IUnknown> another;
    ASSERT_EQ(S_OK, CoCreateInstance(snapInClass, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(another.GetAddressOf())));
    EXPECT_EQ(2, reads);
}

} // namespace
} // namespace Acceptance
