#pragma once

#include "brimlow/database/Connection.h"
#include "brimlow/database/RandomId.h"

#include <cstdint>
#include <memory>

struct sqlite3_stmt;

namespace Database
{

// One SQL statement, to be run once or again and again with other values. Everything throws as Connection does.
class Statement
{
  public:
    // The connection must outlive the statement.
    Statement(const Connection& connection, const char* sql);

    // Starts over with these values for ?1, ?2, …
    template <class... Values>
    Statement& bind(const Values&... values)
    {
        reset();
        [[maybe_unused]] int index = 0;
        (bindAt(++index, values), ...);
        return *this;
    }

    // Goes to the first or next row. Returns false when there is none (left); a change is made then.
    bool step();

    // The columns of the row, from 0. A value of another type is converted, NULL to 0 or an empty text: the file may
    // have been written by anybody.
    std::int64_t getInt64(int column) const;
    int getInt(int column) const;
    bool getBool(int column) const { return getInt64(column) != 0; }
    Core::String getText(int column) const;
    RandomId getRandomId(int column) const;

  private:
    struct Finalizer
    {
        void operator()(sqlite3_stmt* statement) const noexcept;
    };

    void reset();
    void bindAt(int index, std::int64_t value);
    void bindAt(int index, int value) { bindAt(index, std::int64_t{value}); }
    void bindAt(int index, bool value) { bindAt(index, std::int64_t{value}); }
    void bindAt(int index, const Core::String& value);
    void bindAt(int index, const RandomId& value);

    const Connection& m_connection;
    std::unique_ptr<sqlite3_stmt, Finalizer> m_statement;
};

} // namespace Database
