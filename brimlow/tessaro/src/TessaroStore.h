#pragma once

#include "Content.h"

#include "brimlow/database/Snapshot.h"

namespace Tessaro
{

// Where the records and the files of the applications are.
struct Place
{
    Database::DatabaseFile database;
    // The folder that has a folder for each application.
    Core::String applications;
};

// The content of the database as this process last saw it, and the way to change it. One object serves the process.
class TessaroStore
{
  public:
    using Pointer = Database::Snapshot<Content>::Pointer;

    static TessaroStore& instance();
    static Place machinePlace();

    TessaroStore();

    // The content now; an empty one when there is no database. Throws DatabaseException.
    Pointer get(const Place& place);

    // See Database::Snapshot::change: write(connection) changes the database inside a transaction, apply(content) does
    // the same to the content in memory.
    template <class Write, class Apply>
    void change(const Place& place, Pointer& held, Write write, Apply apply)
    {
        m_snapshot.change(place.database, held, write, apply);
    }

  private:
    Database::Snapshot<Content> m_snapshot;
};

} // namespace Tessaro
