#include "OtherProgram.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

OtherProgram::OtherProgram(const Core::String& path)
{
    EXPECT_EQ(SQLITE_OK, sqlite3_open(path.toUtf8().c_str(), &m_database));
}

OtherProgram::~OtherProgram()
{
    sqlite3_close(m_database);
}

void OtherProgram::execute(const char* sql)
{
    EXPECT_EQ(SQLITE_OK, sqlite3_exec(m_database, sql, nullptr, nullptr, nullptr)) << sqlite3_errmsg(m_database);
}
