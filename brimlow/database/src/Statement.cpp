#include "brimlow/database/Statement.h"

#include <algorithm>
#include <sqlite3.h>

namespace Database
{

namespace
{

// SQLite takes these for a byte order mark when a text begins with them.
constexpr bool isByteOrderMark(Core::Char unit) noexcept
{
    return unit == 0xFEFF || unit == 0xFFFE;
}

} // namespace

void Statement::Finalizer::operator()(sqlite3_stmt* statement) const noexcept
{
    sqlite3_finalize(statement);
}

Statement::Statement(const Connection& connection, const char* sql) : m_connection(connection)
{
    sqlite3_stmt* statement = nullptr;
    if (const int result = sqlite3_prepare_v2(connection.get(), sql, -1, &statement, nullptr); result != SQLITE_OK)
    {
        connection.fail(result);
    }
    m_statement.reset(statement);
}

void Statement::reset()
{
    // Returns what the last step did, which has been reported already.
    sqlite3_reset(m_statement.get());
}

void Statement::bindAt(int index, std::int64_t value)
{
    if (const int result = sqlite3_bind_int64(m_statement.get(), index, value); result != SQLITE_OK)
    {
        m_connection.fail(result);
    }
}

void Statement::bindAt(int index, const Core::String& value)
{
    // SQLite removes a byte order mark, but only one.
    const bool marked = !value.empty() && isByteOrderMark(value[0]);
    const Core::String text = marked ? Core::String(u"\uFEFF") + value : value;
    if (const int result = sqlite3_bind_text64(m_statement.get(), index, reinterpret_cast<const char*>(text.c_str()),
                                               text.length() * sizeof(Core::Char), SQLITE_TRANSIENT, SQLITE_UTF16LE);
        result != SQLITE_OK)
    {
        m_connection.fail(result);
    }
}

void Statement::bindAt(int index, const RandomId& value)
{
    if (const int result = sqlite3_bind_blob64(m_statement.get(), index, value.data(), value.size(), SQLITE_TRANSIENT);
        result != SQLITE_OK)
    {
        m_connection.fail(result);
    }
}

bool Statement::step()
{
    const int result = sqlite3_step(m_statement.get());
    if (result != SQLITE_ROW && result != SQLITE_DONE)
    {
        m_connection.fail(result);
    }
    return result == SQLITE_ROW;
}

std::int64_t Statement::getInt64(int column) const
{
    return sqlite3_column_int64(m_statement.get(), column);
}

int Statement::getInt(int column) const
{
    return sqlite3_column_int(m_statement.get(), column);
}

Core::String Statement::getText(int column) const
{
    const auto* units = static_cast<const Core::Char*>(sqlite3_column_text16(m_statement.get(), column));
    const auto bytes = static_cast<std::size_t>(sqlite3_column_bytes16(m_statement.get(), column));
    return units ? Core::String(Core::String::View(units, bytes / sizeof(Core::Char))) : Core::String();
}

RandomId Statement::getRandomId(int column) const
{
    RandomId id{};
    const auto* bytes = static_cast<const unsigned char*>(sqlite3_column_blob(m_statement.get(), column));
    const auto count = static_cast<std::size_t>(sqlite3_column_bytes(m_statement.get(), column));
    std::copy_n(bytes, bytes ? std::min(count, id.size()) : 0, id.begin());
    return id;
}

} // namespace Database
