#include "brimlow/system/Configuration.h"
#include "PrintTo.h"
#include "TemporaryFolder.h"
#include "brimlow/system/Exception.h"
#include "refusal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

using Core::Configuration;
using Core::String;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

using Entries = std::vector<std::pair<String, String>>;

class ConfigurationValues : public testing::Test
{
  protected:
    Configuration load(std::string_view content)
    {
        m_folder.write(L"a.config", content);
        return loadAgain();
    }

    Configuration loadAgain()
    {
        Configuration configuration;
        configuration.loadFrom(m_path);
        return configuration;
    }

    // What a new store reads after this one was saved.
    Configuration saveAndLoad(const Configuration& configuration)
    {
        configuration.saveTo(m_path);
        return loadAgain();
    }

    static std::optional<String> valueOf(const Configuration& configuration, const String& key)
    {
        String value;
        return configuration.getValue(key, value) ? std::optional(value) : std::nullopt;
    }

    static Entries entriesOf(const Configuration& configuration)
    {
        Entries entries;
        for (std::size_t index = 0; index < configuration.getKeyCount(); ++index)
        {
            entries.emplace_back(configuration.getKeyAt(index), configuration.getValueAt(index));
        }
        return entries;
    }

    const TemporaryFolder m_folder;
    const String m_path = m_folder.path(L"a.config");
};

TEST_F(ConfigurationValues, ANewStoreIsEmpty)
{
    const Configuration configuration;
    EXPECT_EQ(std::nullopt, valueOf(configuration, L"ServerPort"));
    EXPECT_EQ(0u, configuration.getKeyCount());
}

TEST_F(ConfigurationValues, FilesWithoutSettingsAreEmptyStores)
{
    for (const std::string_view content :
         {"", "\xEF\xBB\xBF", "<configuration/>", "<configuration></configuration>",
          "<configuration><other><add key=\"a\" value=\"1\"/></other></configuration>",
          "<configuration><appSettings/></configuration>",
          "<configuration><appSettings><add value=\"1\"/><remove key=\"a\"/></appSettings></configuration>"})
    {
        const Configuration configuration = load(content);
        EXPECT_THAT(entriesOf(configuration), IsEmpty()) << content;
        EXPECT_EQ(std::nullopt, valueOf(configuration, L"a")) << content;
    }
}

TEST_F(ConfigurationValues, AMissingFileIsReported)
{
    Configuration configuration;
    EXPECT_THROW(configuration.loadFrom(m_path), Core::FileNotFoundException);
}

TEST_F(ConfigurationValues, ReadsAFile)
{
    const Configuration configuration = load("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
                                             "<configuration>\n"
                                             "  <appSettings>\n"
                                             "    <add key=\"ServerPort\" value=\"1099\"/>\n"
                                             "    <add value='' key='Empty'></add>\n"
                                             "    <add key=\"NoValue\"/>\n"
                                             "  </appSettings>\n"
                                             "</configuration>\n");
    EXPECT_EQ(L"1099", valueOf(configuration, L"ServerPort"));
    EXPECT_EQ(L"", valueOf(configuration, L"Empty"));
    EXPECT_EQ(L"", valueOf(configuration, L"NoValue"));
    EXPECT_EQ(std::nullopt, valueOf(configuration, L"serverport"));
    EXPECT_EQ(std::nullopt, valueOf(configuration, L""));
}

TEST_F(ConfigurationValues, AnAbsentKeyLeavesTheValueAlone)
{
    String value = L"before";
    EXPECT_FALSE(Configuration().getValue(L"a", value));
    EXPECT_EQ(String(L"before"), value);
}

TEST_F(ConfigurationValues, LoadingReplacesTheStore)
{
    Configuration configuration;
    configuration.setValue(L"a", L"1", m_path);
    m_folder.write(L"a.config", "<configuration/>");
    configuration.loadFrom(m_path);
    EXPECT_EQ(std::nullopt, valueOf(configuration, L"a"));
}

TEST_F(ConfigurationValues, AFailedLoadLeavesTheStore)
{
    Configuration configuration;
    configuration.setValue(L"a", L"1", m_path);
    m_folder.write(L"a.config", "<configuration>");
    EXPECT_THROW(configuration.loadFrom(m_path), Core::FormatException);
    EXPECT_EQ(L"1", valueOf(configuration, L"a"));
}

TEST_F(ConfigurationValues, EveryValueThatXmlCanHoldSurvivesASave)
{
    const wchar_t* const values[] = {
        L"",
        L" ",
        L"  blanks  kept  ",
        L"<>&\"'",
        L"&amp;&lt;&#10;&unknown;",
        L"a\nb",
        L"a\r\nb\rc",
        L"\t\n\r",
        L"]]><!-- --><?x?>",
        L"%APP_DATA%\\Brimlow\\Log\\",
        L"\u00C4\u00DF\u20AC\u65E5\u672C",
        L"\U0001F600\U0010FFFD",
        L"\u007F\u0080\u0085\u2028\uFEFF\uFFFD",
    };
    for (const wchar_t* value : values)
    {
        // As keys too.
        Configuration configuration;
        configuration.setValue(value, L"key", m_path);
        configuration.setValue(L"value", value, m_path);
        const Configuration saved = saveAndLoad(configuration);
        EXPECT_EQ(String(value), valueOf(saved, L"value")) << String(value).toUtf8();
        EXPECT_EQ(L"key", valueOf(saved, value)) << String(value).toUtf8();
    }
}

TEST_F(ConfigurationValues, WhatXmlCannotHoldIsRefusedNamingKeyFileAndCharacter)
{
    const struct
    {
        String text;
        const wchar_t* code;
    } cases[] = {
        {std::wstring_view(L"a\0b", 3), L"U+0000"},
        {L"\x01", L"U+0001"},
        {L"\x0B", L"U+000B"},
        {L"\x1F", L"U+001F"},
        {L"\uFFFE", L"U+FFFE"},
        {L"\uFFFF", L"U+FFFF"},
        {std::u16string{0xD83D}, L"U+D83D"},
        {std::u16string{0xD83D, u'x'}, L"U+D83D"},
        {std::u16string{0xDE00}, L"U+DE00"},
        {std::u16string{0xDE00, 0xD83D}, L"U+DE00"},
    };
    for (const auto& [text, code] : cases)
    {
        Configuration configuration;
        configuration.setValue(L"Name", L"before", m_path);
        try
        {
            configuration.setValue(L"Name", text, m_path);
            ADD_FAILURE() << "nothing thrown for " << String(code).toUtf8();
        }
        catch (const Core::FormatException& exception)
        {
            EXPECT_EQ(L"The value of the key \"Name\" cannot be stored in \"" + m_path +
                          L"\", because it contains the character " + code + L".",
                      exception.getMessage());
        }
        EXPECT_EQ(L"The key \"" + String(text) + L"\" cannot be stored in \"" + m_path +
                      L"\", because it contains the character " + code + L".",
                  refusal([&, key = text] { configuration.setValue(key, L"x", m_path); }));
        EXPECT_THAT(entriesOf(configuration), ElementsAre(std::pair(String(L"Name"), String(L"before"))));
    }
}

TEST_F(ConfigurationValues, ReferencesAndWhiteSpaceAreReadAsXmlRules)
{
    const struct
    {
        const char* raw;
        const wchar_t* value;
    } cases[] = {
        {"&lt;&gt;&amp;&quot;&apos;", L"<>&\"'"},
        {"&#65;&#x42;&#x1F600;&#x1f600;", L"AB\U0001F600\U0001F600"},
        {"&#9;&#10;&#13;", L"\t\n\r"},
        {"a\tb\nc\r\nd\re", L"a b c d e"},
        {"&amp;lt;", L"&lt;"},
        {"'>", L"'>"},
    };
    for (const auto& [raw, value] : cases)
    {
        const Configuration configuration = load("<configuration><appSettings><add key=\"a\" value=\"" +
                                                 std::string(raw) + "\"/></appSettings></configuration>");
        EXPECT_EQ(String(value), valueOf(configuration, L"a")) << raw;
        EXPECT_EQ(String(value), valueOf(saveAndLoad(configuration), L"a")) << raw;
    }
}

TEST_F(ConfigurationValues, KeysAreCaseSensitive)
{
    Configuration configuration;
    configuration.setValue(L"Key", L"1", m_path);
    configuration.setValue(L"KEY", L"2", m_path);
    EXPECT_EQ(L"1", valueOf(configuration, L"Key"));
    EXPECT_EQ(L"2", valueOf(configuration, L"KEY"));
    configuration.deleteValue(L"key");
    EXPECT_EQ(2u, configuration.getKeyCount());
}

TEST_F(ConfigurationValues, OrderIsThatOfTheFile)
{
    Configuration configuration =
        load("<configuration><appSettings><add key=\"b\" value=\"1\"/><add key=\"a\" value=\"2\"/>"
             "<add key=\"c\" value=\"3\"/></appSettings></configuration>");
    configuration.setValue(L"a", L"changed", m_path);
    configuration.setValue(L"0", L"new", m_path);
    configuration.deleteValue(L"c");
    const Entries expected{{L"b", L"1"}, {L"a", L"changed"}, {L"0", L"new"}};
    EXPECT_EQ(expected, entriesOf(configuration));
    EXPECT_EQ(expected, entriesOf(saveAndLoad(configuration)));
}

TEST_F(ConfigurationValues, SettingsInSeveralSectionsAreOneStore)
{
    Configuration configuration =
        load("<configuration><appSettings><add key=\"a\" value=\"1\"/></appSettings><x/>"
             "<appSettings><add key=\"b\" value=\"2\"/><add key=\"a\" value=\"3\"/></appSettings>"
             "<appSettings/></configuration>");
    const Entries expected{{L"b", L"2"}, {L"a", L"3"}};
    EXPECT_EQ(expected, entriesOf(configuration));
    configuration.setValue(L"c", L"4", m_path);
    const Entries withNew{{L"b", L"2"}, {L"a", L"3"}, {L"c", L"4"}};
    EXPECT_EQ(withNew, entriesOf(saveAndLoad(configuration)));
}

constexpr const char* duplicates =
    "<configuration><appSettings><add key=\"a\" value=\"1\"/><add key=\"b\" value=\"2\"/><add key=\"a\" value=\"3\"/>"
    "<add key=\"c\" value=\"4\"/></appSettings></configuration>";

TEST_F(ConfigurationValues, TheLastOfDuplicateKeysCounts)
{
    const Configuration configuration = load(duplicates);
    const Entries expected{{L"b", L"2"}, {L"a", L"3"}, {L"c", L"4"}};
    EXPECT_EQ(L"3", valueOf(configuration, L"a"));
    EXPECT_EQ(expected, entriesOf(configuration));
}

TEST_F(ConfigurationValues, SettingADuplicateKeyChangesTheOneThatCounts)
{
    Configuration configuration = load(duplicates);
    configuration.setValue(L"a", L"new", m_path);
    configuration.saveTo(m_path);
    EXPECT_EQ("<configuration><appSettings><add key=\"a\" value=\"1\"/><add key=\"b\" value=\"2\"/><add key=\"a\" "
              "value=\"new\"/><add key=\"c\" value=\"4\"/></appSettings></configuration>",
              m_folder.read(L"a.config"));
}

TEST_F(ConfigurationValues, DeletingADuplicateKeyRemovesAll)
{
    Configuration configuration = load(duplicates);
    configuration.deleteValue(L"a");
    EXPECT_EQ(std::nullopt, valueOf(configuration, L"a"));
    const Entries expected{{L"b", L"2"}, {L"c", L"4"}};
    EXPECT_EQ(expected, entriesOf(configuration));
    EXPECT_EQ(expected, entriesOf(saveAndLoad(configuration)));
}

TEST_F(ConfigurationValues, KeysThatAreWrittenDifferentlyAreOneKey)
{
    Configuration configuration =
        load("<configuration><appSettings><add key=\"&#x41;\" value=\"1\"/><add key=\"A\" value=\"2\"/></appSettings>"
             "</configuration>");
    EXPECT_EQ(1u, configuration.getKeyCount());
    configuration.deleteValue(L"A");
    EXPECT_EQ(0u, saveAndLoad(configuration).getKeyCount());
}

TEST_F(ConfigurationValues, DeletingAnAbsentKeyIsHarmless)
{
    Configuration configuration;
    configuration.deleteValue(L"a");
    EXPECT_EQ(0u, saveAndLoad(configuration).getKeyCount());
}

TEST_F(ConfigurationValues, AnIndexBeyondTheKeysIsRefused)
{
    Configuration configuration;
    EXPECT_THROW(configuration.getKeyAt(0), Core::UnreacheableCodeException);
    configuration.setValue(L"a", L"1", m_path);
    EXPECT_EQ(String(L"a"), configuration.getKeyAt(0));
    EXPECT_THROW(configuration.getValueAt(1), Core::UnreacheableCodeException);
}

TEST_F(ConfigurationValues, SavingAlwaysWrites)
{
    const Configuration configuration = load("<configuration/>");
    m_folder.write(L"a.config", "changed by another program");
    configuration.saveTo(m_path);
    EXPECT_EQ("<configuration/>", m_folder.read(L"a.config"));
}

TEST_F(ConfigurationValues, AStoreCanBeSavedElsewhere)
{
    Configuration configuration = load("<configuration/>");
    configuration.setValue(L"a", L"1", m_path);
    configuration.saveTo(m_folder.path(L"b\\b.config"));
    EXPECT_EQ("<configuration/>", m_folder.read(L"a.config"));
    Configuration copy;
    copy.loadFrom(m_folder.path(L"b\\b.config"));
    EXPECT_EQ(L"1", valueOf(copy, L"a"));
}

TEST_F(ConfigurationValues, ReadsUtf16InEveryForm)
{
    const std::u16string text = u"<?xml version=\"1.0\" encoding=\"utf-16\"?><configuration><appSettings>"
                                u"<add key=\"\u00C4\" value=\"\U0001F600\"/></appSettings></configuration>";
    for (const bool bigEndian : {false, true})
    {
        for (const bool mark : {false, true})
        {
            std::string bytes;
            for (const char16_t unit : (mark ? u"\uFEFF" : u"") + text)
            {
                const char low = static_cast<char>(unit & 0xFF);
                const char high = static_cast<char>(unit >> 8);
                bytes += {bigEndian ? high : low, bigEndian ? low : high};
            }
            const Configuration configuration = load(bytes);
            EXPECT_EQ(L"\U0001F600", valueOf(configuration, L"\u00C4")) << bigEndian << mark;
            configuration.saveTo(m_path);
            EXPECT_EQ("<?xml version=\"1.0\" encoding=\"utf-8\"?><configuration><appSettings>"
                      "<add key=\"\xC3\x84\" value=\"\xF0\x9F\x98\x80\"/></appSettings></configuration>",
                      m_folder.read(L"a.config"));
        }
    }
}

TEST_F(ConfigurationValues, FortyThousandKeysAreFilledSavedLoadedChangedAndRemoved)
{
    constexpr int keys = 40'000;
    const auto keyOf = [](int index) { return String(L"key" + std::to_wstring(index)); };
    Configuration filled;
    for (int index = 0; index < keys; ++index)
    {
        filled.setValue(keyOf(index), L"value", m_path);
    }
    filled.saveTo(m_path);
    Configuration loaded;
    loaded.loadFrom(m_path);
    for (int index = 0; index < keys; ++index)
    {
        EXPECT_EQ(keyOf(index), loaded.getKeyAt(static_cast<std::size_t>(index)));
        loaded.setValue(keyOf(index), L"another value", m_path);
    }
    for (int index = 0; index < keys; ++index)
    {
        loaded.deleteValue(keyOf(index));
    }
    EXPECT_EQ(0u, loaded.getKeyCount());
}

TEST_F(ConfigurationValues, AFileOfFiftyMegabytesIsReadAndSaved)
{
    const std::string value(10'000, 'v');
    std::string content = "<configuration><appSettings>";
    for (int index = 0; content.size() < 50'000'000; ++index)
    {
        content += "<add key=\"" + std::to_string(index) + "\" value=\"" + value + "\"/>";
    }
    content += "<add key=\"huge\" value=\"" + std::string(5'000'000, 'h') + "\"/></appSettings></configuration>";
    const Configuration configuration = load(content);
    String huge;
    ASSERT_TRUE(configuration.getValue(L"huge", huge));
    EXPECT_EQ(5'000'000u, huge.length());
    configuration.saveTo(m_path);
    EXPECT_TRUE(content == m_folder.read(L"a.config"));
}

} // namespace
