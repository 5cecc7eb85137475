#include "TemporaryFolder.h"
#include "brimlow/system/Configuration.h"

#include <gtest/gtest.h>

using Core::Configuration;

namespace
{

// The content of a file after it was loaded, changed and saved.
template <class Change>
std::string after(std::string_view content, Change change)
{
    const TemporaryFolder folder;
    folder.write(L"a.config", content);
    Configuration configuration;
    configuration.loadFrom(folder.path(L"a.config"));
    change(configuration);
    configuration.saveTo(folder.path(L"a.config"));
    return folder.read(L"a.config");
}

std::string unchanged(std::string_view content)
{
    return after(content, [](Configuration&) {});
}

std::string withNewKey(std::string_view content)
{
    return after(content, [](Configuration& configuration) { configuration.setValue(L"new", L"1", L"a.config"); });
}

std::string withoutKey(std::string_view content)
{
    return after(content, [](Configuration& configuration) { configuration.deleteValue(L"gone"); });
}

TEST(ConfigurationForm, ASaveChangesNothingThatItNeedNotChange)
{
    const std::string_view cases[] = {
        "<configuration/>",
        "\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<configuration>\r\n</configuration>\r\n",
        "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n<!-- first -->\n<?tool do this?>\n"
        "<configuration>\n\t<!-- second -->\n\t<appSettings>\n\n\t\t<add key=\"a\" value=\"1\"/> <!-- third -->\n"
        "\t</appSettings>\n\t<unknown a=\"1\"><deep>text &amp; more &#x41; \n</deep><![CDATA[<raw>]]></unknown>\n"
        "</configuration>\n<!-- last -->",
        "<configuration><appSettings><add key=\"a\" value=\"x&#10;y&#65;&apos;\" more=\"kept\"/><remove key=\"a\"/>"
        "<clear/></appSettings></configuration>",
        "<configuration xmlns=\"urn:a\" xmlns:b=\"urn:b\"><b:add key=\"x\"/></configuration>",
        "<configuration>text\r\nin\tlines</configuration>",
        "<configuration a=\"line\r\nline\"/>",
    };
    for (const std::string_view content : cases)
    {
        EXPECT_EQ(content, unchanged(content));
    }
}

TEST(ConfigurationForm, AnElementWithoutContentIsWrittenInItsShortForm)
{
    EXPECT_EQ("<configuration/>", unchanged("<configuration></configuration>"));
}

TEST(ConfigurationForm, BlanksInTagsAndTheKindOfQuotesMayChange)
{
    EXPECT_EQ("<configuration><appSettings><add key=\"a\" value=\"say &quot;yes&quot; &amp; "
              "&apos;no&apos;\"/></appSettings></configuration>",
              unchanged("<configuration ><appSettings  ><add  key = 'a'\n value='say \"yes\" &amp; &apos;no&apos;' />"
                        "</appSettings ></configuration >"));
}

TEST(ConfigurationForm, ANewFileIsMadeInTheUsualForm)
{
    const std::string expected = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n"
                                 "<configuration>\r\n"
                                 "  <appSettings>\r\n"
                                 "    <add key=\"new\" value=\"1\"/>\r\n"
                                 "  </appSettings>\r\n"
                                 "</configuration>\r\n";
    EXPECT_EQ(expected, withNewKey(""));
}

TEST(ConfigurationForm, AStoreWithoutKeysIsSavedAsAConfigurationToo)
{
    EXPECT_EQ(
        "<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<configuration>\r\n  <appSettings/>\r\n</configuration>\r\n",
        unchanged(""));
}

TEST(ConfigurationForm, ANewKeyGoesLastIndentedAsItsSiblings)
{
    const struct
    {
        const char* before;
        const char* after;
    } cases[] = {
        {"<configuration>\n  <appSettings>\n    <add key=\"a\" value=\"2\"/>\n  </appSettings>\n</configuration>",
         "<configuration>\n  <appSettings>\n    <add key=\"a\" value=\"2\"/>\n    <add key=\"new\" value=\"1\"/>\n  "
         "</appSettings>\n</configuration>"},
        {"<configuration>\r\n<appSettings>\r\n\t<add key=\"a\" value=\"2\"/>\r\n</appSettings></configuration>",
         "<configuration>\r\n<appSettings>\r\n\t<add key=\"a\" value=\"2\"/>\r\n\t<add key=\"new\" "
         "value=\"1\"/>\r\n</appSettings></configuration>"},
        // After an empty line only one line end is taken over.
        {"<configuration><appSettings>\n\n  <add key=\"a\" value=\"2\"/>\n</appSettings></configuration>",
         "<configuration><appSettings>\n\n  <add key=\"a\" value=\"2\"/>\n  <add key=\"new\" "
         "value=\"1\"/>\n</appSettings></configuration>"},
        // All in one line stays in one line.
        {"<configuration><appSettings><add key=\"a\" value=\"2\"/></appSettings></configuration>",
         "<configuration><appSettings><add key=\"a\" value=\"2\"/><add key=\"new\" "
         "value=\"1\"/></appSettings></configuration>"},
        {"<configuration><appSettings/></configuration>",
         "<configuration><appSettings><add key=\"new\" value=\"1\"/></appSettings></configuration>"},
        // No sibling to learn from.
        {"<configuration>\n  <appSettings/>\n</configuration>",
         "<configuration>\n  <appSettings>\n    <add key=\"new\" value=\"1\"/>\n  </appSettings>\n</configuration>"},
        {"<configuration>\n\t<appSettings>\n\t</appSettings>\n</configuration>",
         "<configuration>\n\t<appSettings>\n\t\t<add key=\"new\" value=\"1\"/>\n\t</appSettings>\n</configuration>"},
        {"<configuration>\n  <appSettings>\n    <!-- none -->\n  </appSettings>\n</configuration>",
         "<configuration>\n  <appSettings>\n    <!-- none -->\n    <add key=\"new\" value=\"1\"/>\n  "
         "</appSettings>\n</configuration>"},
        // No appSettings.
        {"<?xml version=\"1.0\"?>\n<configuration/>",
         "<?xml version=\"1.0\"?>\n<configuration>\n  <appSettings>\n    <add key=\"new\" value=\"1\"/>\n  "
         "</appSettings>\n</configuration>"},
        {"<configuration>\n    <other/>\n</configuration>",
         "<configuration>\n    <other/>\n    <appSettings>\n      <add key=\"new\" value=\"1\"/>\n    "
         "</appSettings>\n</configuration>"},
    };
    for (const auto& [before, expected] : cases)
    {
        EXPECT_EQ(expected, withNewKey(before));
    }
}

TEST(ConfigurationForm, AChangedKeyKeepsItsPlaceAndItsOtherAttributes)
{
    const auto change = [](Configuration& configuration) { configuration.setValue(L"a", L"new", L"a.config"); };
    EXPECT_EQ("<configuration><appSettings>\n<!-- x --><add note=\"n\" key=\"a\" value=\"new\"/>\n<add key=\"b\" "
              "value=\"2\"/></appSettings></configuration>",
              after("<configuration><appSettings>\n<!-- x --><add note=\"n\" key=\"a\" value=\"1\"/>\n<add key=\"b\" "
                    "value=\"2\"/></appSettings></configuration>",
                    change));
    EXPECT_EQ("<configuration><appSettings><add key=\"a\" value=\"new\"/></appSettings></configuration>",
              after("<configuration><appSettings><add key=\"a\"/></appSettings></configuration>", change));
}

TEST(ConfigurationForm, ADeletedKeyTakesItsLineWithIt)
{
    const struct
    {
        const char* before;
        const char* after;
    } cases[] = {
        {"<configuration>\n  <appSettings>\n    <add key=\"a\" value=\"1\"/>\n    <add key=\"gone\" "
         "value=\"2\"/>\n  </appSettings>\n</configuration>",
         "<configuration>\n  <appSettings>\n    <add key=\"a\" value=\"1\"/>\n  </appSettings>\n</configuration>"},
        {"<configuration><appSettings><add key=\"gone\" value=\"1\"/><add key=\"a\" "
         "value=\"2\"/></appSettings></configuration>",
         "<configuration><appSettings><add key=\"a\" value=\"2\"/></appSettings></configuration>"},
        {"<configuration><appSettings>\n  <!-- kept -->\n  <add key=\"gone\" "
         "value=\"1\"/>\n</appSettings></configuration>",
         "<configuration><appSettings>\n  <!-- kept -->\n</appSettings></configuration>"},
        {"<configuration><appSettings>text<add key=\"gone\" value=\"1\"/>text</appSettings></configuration>",
         "<configuration><appSettings>texttext</appSettings></configuration>"},
    };
    for (const auto& [before, expected] : cases)
    {
        EXPECT_EQ(expected, withoutKey(before));
    }
}

} // namespace
