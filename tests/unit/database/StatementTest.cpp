#include "brimlow/database/Statement.h"
#include "NumberTable.h"
#include "PrintTo.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace
{

using namespace Database;

class StatementTest : public testing::Test
{
  protected:
    const TemporaryFolder m_disk;
    Connection m_connection = Connection::openOrCreate(NumberTable::at(m_disk.path(L"Numbers.db")));
};

TEST_F(StatementTest, KeepsEveryUnitOfAText)
{
    m_connection.execute("CREATE TABLE text (value TEXT)");
    const Core::String texts[] = {
        L"",
        L"plain",
        L"\u00C4\u65E5\u0627\U0001F600",
        Core::String(u"lone \xD800"),
        Core::String(u"\xDC00 lone"),
        Core::String(u"\xDC00\xD800"),
        Core::String(std::u16string_view(u"a\0b\0", 4)),
        Core::String(std::u16string_view(u"\0", 1)),
        Core::String(u"\xFEFF"),
        Core::String(u"\xFEFF\xFEFFtext"),
        Core::String(u"\xFFFEtext"),
        Core::String(u"text\xFEFF"),
        Core::String(std::wstring(40'000, L'x')),
    };
    for (const Core::String& text : texts)
    {
        m_connection.execute("DELETE FROM text");
        Statement(m_connection, "INSERT INTO text VALUES (?1)").bind(text).step();
        Statement stored(m_connection, "SELECT value FROM text");
        ASSERT_TRUE(stored.step());
        EXPECT_EQ(text, stored.getText(0));
        EXPECT_FALSE(stored.step());
    }
}

TEST_F(StatementTest, ConvertsValuesOfOtherTypes)
{
    const struct
    {
        const char* sql;
        std::int64_t number;
        const wchar_t* text;
    } cases[] = {
        {"SELECT NULL", 0, L""},       {"SELECT 17", 17, L"17"},   {"SELECT '17x'", 17, L"17x"},
        {"SELECT x'410042'", 0, L"A"}, {"SELECT 2.5", 2, L"2.5"},  {"SELECT ''", 0, L""},
        {"SELECT x''", 0, L""},        {"SELECT '-1'", -1, L"-1"},
    };
    for (const auto& [sql, number, text] : cases)
    {
        Statement statement(m_connection, sql);
        ASSERT_TRUE(statement.step());
        EXPECT_EQ(text, statement.getText(0)) << sql;
        EXPECT_EQ(number, statement.getInt64(0)) << sql;
        EXPECT_EQ(number != 0, statement.getBool(0)) << sql;
    }
}

TEST_F(StatementTest, BindsNumbersAndIds)
{
    RandomId id{};
    id.front() = 1;
    id.back() = 0xFF;
    Statement echo(m_connection, "SELECT ?1, ?2, ?3, ?4, length(?4)");
    echo.bind(std::numeric_limits<std::int64_t>::min(), -5, true, id);
    ASSERT_TRUE(echo.step());
    EXPECT_EQ(std::numeric_limits<std::int64_t>::min(), echo.getInt64(0));
    EXPECT_EQ(-5, echo.getInt(1));
    EXPECT_TRUE(echo.getBool(2));
    EXPECT_EQ(id, echo.getRandomId(3));
    EXPECT_EQ(16, echo.getInt(4));
}

TEST_F(StatementTest, TakesWhatAnIdHasAndZerosForTheRest)
{
    Statement ids(m_connection, "SELECT x'0102', NULL, x'000102030405060708090A0B0C0D0E0F1011'");
    ASSERT_TRUE(ids.step());
    EXPECT_EQ((RandomId{1, 2}), ids.getRandomId(0));
    EXPECT_EQ(RandomId{}, ids.getRandomId(1));
    EXPECT_EQ((RandomId{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15}), ids.getRandomId(2));
}

TEST_F(StatementTest, RunsAgainWithOtherValues)
{
    Statement echo(m_connection, "SELECT ?1");
    for (const int value : {1, 2})
    {
        echo.bind(value);
        ASSERT_TRUE(echo.step());
        EXPECT_EQ(value, echo.getInt(0));
    }
}

} // namespace
