#include "PrintTo.h"
#include "TemporaryFolder.h"
#include "brimlow/system/Configuration.h"
#include "brimlow/system/Exception.h"

#include <gtest/gtest.h>

#include <algorithm>

using Core::Configuration;
using Core::String;

namespace
{

constexpr wchar_t badReference[] = L"\"&\" must begin one of the references of XML, or be written as \"&amp;\".";

struct Case
{
    std::string content;
    std::size_t line;
    std::size_t column;
    const wchar_t* reason;
    // What the XML parser finds is reported to within one character; what we find ourselves, exactly.
    std::size_t tolerance = 0;
};

class ConfigurationRefusal : public testing::Test
{
  protected:
    void expectRefused(const Case& expected)
    {
        m_folder.write(L"a.config", expected.content);
        try
        {
            Configuration().loadFrom(m_path);
            ADD_FAILURE() << "accepted: " << testing::PrintToString(expected.content.substr(0, 200));
        }
        catch (const Core::FileFormatException& exception)
        {
            EXPECT_EQ(expected.line, exception.getTextLine()) << exception.what();
            const std::size_t column = exception.getTextColumn();
            EXPECT_LE(std::max(column, expected.column) - std::min(column, expected.column), expected.tolerance)
                << exception.what();
            EXPECT_EQ(L"\"" + m_path + L"\", line " + String(std::to_wstring(expected.line)) + L", column " +
                          String(std::to_wstring(column)) + L": " + expected.reason,
                      exception.getMessage());
        }
        EXPECT_EQ(expected.content, m_folder.read(L"a.config"));
    }

    const TemporaryFolder m_folder;
    const String m_path = m_folder.path(L"a.config");
};

TEST_F(ConfigurationRefusal, DocumentTypeDeclarations)
{
    const wchar_t* reason = L"a document type declaration (DOCTYPE) is not allowed in a configuration file. Remove it.";
    const std::string settings =
        "<configuration><appSettings><add key=\"a\" value=\"&x;\"/></appSettings></configuration>";
    expectRefused({"<!DOCTYPE configuration>\n<configuration/>", 1, 1, reason});
    expectRefused(
        {"<?xml version=\"1.0\"?>\n <!DOCTYPE configuration [<!ENTITY x SYSTEM \"file:///etc/passwd\">]>" + settings, 2,
         2, reason});
    expectRefused({"<!DOCTYPE a [<!ENTITY x \"1\"><!ENTITY y \"&x;&x;\">]>" + settings, 1, 1, reason});
    expectRefused({"<!DOCTYPE", 1, 1, reason});
    expectRefused({"<configuration><!DOCTYPE a></configuration>", 1, 16, reason});
}

TEST_F(ConfigurationRefusal, AnotherRootElementNamesIt)
{
    m_folder.write(L"a.config", "<?xml version=\"1.0\"?><settings><a/></settings>");
    try
    {
        Configuration().loadFrom(m_path);
        FAIL() << "accepted";
    }
    catch (const Core::FormatException& exception)
    {
        EXPECT_EQ(L"\"" + m_path +
                      L"\" is not a configuration file: its root element is \"settings\" instead of \"configuration\".",
                  exception.getMessage());
    }
    m_folder.write(L"a.config", "<Configuration/>");
    EXPECT_THROW(Configuration().loadFrom(m_path), Core::FormatException);
}

TEST_F(ConfigurationRefusal, WhatTheParserCannotRead)
{
    const Case cases[] = {
        {"<configuration>\n", 1, 17, L"the end tag does not match the start tag, or is missing.", 1},
        {"<configuration>\n <a>\n</configuration>", 3, 3, L"the end tag does not match the start tag, or is missing.",
         1},
        {"<configuration", 1, 15, L"the start tag is malformed.", 1},
        {"<configuration/", 1, 16, L"the start tag is malformed.", 1},
        {"<configuration a=1/>", 1, 18, L"the attribute is malformed.", 1},
        {"<configuration a/>", 1, 17, L"the attribute is malformed.", 1},
        {"<configuration a=\"1/>", 1, 19, L"the attribute is malformed.", 1},
        {"<configuration a=\"1\"b=\"2\"/>", 1, 21, L"the attribute is malformed.", 1},
        {"<configuration></configuration", 1, 31, L"the end tag is malformed.", 1},
        {"<configuration>\n<!-- a", 2, 7, L"the comment is not closed.", 1},
        {"<configuration>\n<![CDATA[a", 2, 11, L"the CDATA section is not closed.", 1},
        {"<?xml version=\"1.0\"", 1, 20, L"the processing instruction or declaration is malformed.", 1},
        {"<configuration><1/></configuration>", 1, 17, L"this is not XML.", 1},
    };
    for (const Case& expected : cases)
    {
        SCOPED_TRACE(testing::PrintToString(expected.content));
        expectRefused(expected);
    }
}

TEST_F(ConfigurationRefusal, WhatTheParserWouldLetPass)
{
    const Case cases[] = {
        {" ", 1, 2, L"there is no root element."},
        {"<!-- only -->\n", 2, 1, L"there is no root element."},
        {"plain text", 1, 1, L"there is text outside the root element."},
        {"<configuration/>more", 1, 17, L"there is text outside the root element."},
        {"<configuration/>\n<![CDATA[x]]>", 2, 10, L"there is text outside the root element."},
        {"<configuration/>\n<configuration/>", 2, 2, L"there is a second root element."},
        {"<configuration a=\"1\" a=\"2\"/>", 1, 2, L"the attribute \"a\" occurs twice in one tag."},
        {"<configuration\na=\"x<y\"/>", 2, 5, L"the character \"<\" must be written as \"&lt;\" in an attribute."},
        {"<configuration\na='&'/>", 2, 4, badReference},
        {"<configuration>a&b;</configuration>", 1, 17, badReference},
        {"<configuration>&#0;</configuration>", 1, 16, badReference},
        {"<configuration>&#1;</configuration>", 1, 16, badReference},
        {"<configuration>&#xD83D;&#xDE00;</configuration>", 1, 16, badReference},
        {"<configuration>&#xFFFE;</configuration>", 1, 16, badReference},
        {"<configuration>&#x110000;</configuration>", 1, 16, badReference},
        {"<configuration>&#x100000041;</configuration>", 1, 16, badReference},
        {"<configuration>&#;&#x;</configuration>", 1, 16, badReference},
        {"<configuration>&lt</configuration>", 1, 16, badReference},
        {"<configuration><!-- a -- b --></configuration>", 1, 23, L"a comment must not contain \"--\"."},
        {"<configuration><!-- a ---></configuration>", 1, 24, L"a comment must not end with \"--->\"."},
        {"\n<?xml version=\"1.0\"?><configuration/>", 2, 3, L"the XML declaration must stand at the very beginning."},
        {"<?xml version=\"1.0\" encoding=\"windows-1252\"?><configuration/>", 1, 31,
         L"the encoding \"windows-1252\" is not supported. Save the file as UTF-8."},
        {"<configuration>\n\xC3\xA4\xE4</configuration>", 2, 2, L"the file is neither UTF-8 nor UTF-16 here."},
        {std::string("<configuration>\0</configuration>", 32), 1, 16,
         L"there is a character here that XML does not allow."},
        {"<configuration a='\x01'/>", 1, 19, L"there is a character here that XML does not allow."},
        {std::string("\xFF\xFE<\0a", 5), 1, 1, L"the file is UTF-16 but ends in the middle of a character."},
        {std::string("\xFF\xFE<\0\n\0\x3D\xD8<\0", 10), 2, 1, L"the file is neither UTF-8 nor UTF-16 here."},
    };
    for (const Case& expected : cases)
    {
        SCOPED_TRACE(testing::PrintToString(expected.content));
        expectRefused(expected);
    }
}

TEST_F(ConfigurationRefusal, ColumnsCountCharacters)
{
    expectRefused({"<configuration a=\"\xC3\x84\xF0\x9F\x98\x80\" b='&'/>", 1, 26, badReference});
}

std::string nested(int depth)
{
    std::string content;
    for (int level = 0; level < depth; ++level)
    {
        content += "<a>";
    }
    for (int level = 0; level < depth; ++level)
    {
        content += "</a>";
    }
    return "<configuration>" + content + "</configuration>";
}

TEST_F(ConfigurationRefusal, ElementsNestedTooDeeply)
{
    m_folder.write(L"a.config", nested(200));
    EXPECT_NO_THROW(Configuration().loadFrom(m_path));
    expectRefused({nested(201), 1, 15 + 200 * 3 + 2, L"the elements are nested too deeply."});
    expectRefused({nested(1'000'000), 1, 15 + 200 * 3 + 2, L"the elements are nested too deeply."});
}

} // namespace
