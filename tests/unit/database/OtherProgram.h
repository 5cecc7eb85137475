#pragma once

#include "brimlow/system/String.h"

struct sqlite3;

// Another program that has the database open, with SQLite and nothing of ours.
class OtherProgram
{
  public:
    explicit OtherProgram(const Core::String& path);
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;
    ~OtherProgram();

    // Fails the test when SQLite refuses.
    void execute(const char* sql);

  private:
    sqlite3* m_database = nullptr;
};
