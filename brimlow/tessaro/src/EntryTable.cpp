#include "EntryTable.h"

#include "names.h"

#include "brimlow/database/Statement.h"
#include "brimlow/system/Exception.h"
#include "brimlow/system/StringFormatStream.h"

namespace Tessaro
{

using Core::String;
using Database::Connection;
using Database::Statement;

const EntryTable EntryTable::applications{.noun = L"application",
                                          .isFolder = true,
                                          .selectEntry = "SELECT id, name FROM application WHERE name_key = ?2",
                                          .insertEntry =
                                              "INSERT INTO application (name, name_key) VALUES (?2, ?3) RETURNING id",
                                          .updateName = "UPDATE application SET name = ?2, name_key = ?3 WHERE id = ?1",
                                          .deleteRow = "DELETE FROM application WHERE id = ?1"};

const EntryTable EntryTable::templates{
    .noun = L"template",
    .isFolder = false,
    .selectEntry = "SELECT id, name FROM template WHERE application = ?1 AND name_key = ?2",
    .insertEntry = "INSERT INTO template (application, name, name_key) VALUES (?1, ?2, ?3) RETURNING id",
    .updateName = "UPDATE template SET name = ?2, name_key = ?3 WHERE id = ?1",
    .deleteRow = "DELETE FROM template WHERE id = ?1"};

const EntryTable EntryTable::folders{
    .noun = L"folder",
    .isFolder = true,
    .selectEntry = "SELECT id, name FROM resource_folder WHERE application = ?1 AND name_key = ?2",
    .insertEntry = "INSERT INTO resource_folder (application, name, name_key) VALUES (?1, ?2, ?3) RETURNING id",
    .updateName = "UPDATE resource_folder SET name = ?2, name_key = ?3 WHERE id = ?1",
    .deleteRow = "DELETE FROM resource_folder WHERE id = ?1"};

const EntryTable EntryTable::files{
    .noun = L"file",
    .isFolder = false,
    .selectEntry = "SELECT id, name FROM resource_file WHERE folder = ?1 AND name_key = ?2",
    .insertEntry = "INSERT INTO resource_file (folder, name, name_key) VALUES (?1, ?2, ?3) RETURNING id",
    .updateName = "UPDATE resource_file SET name = ?2, name_key = ?3 WHERE id = ?1",
    .deleteRow = "DELETE FROM resource_file WHERE id = ?1"};

std::optional<EntryTable::Entry> EntryTable::find(const Connection& connection, std::int64_t owner,
                                                  const String& name) const
{
    Statement row(connection, selectEntry);
    row.bind(owner, nameKey(name));
    if (!row.step() || nameRefusal(row.getText(1)))
    {
        return std::nullopt;
    }
    return Entry{row.getInt64(0), row.getText(1)};
}

EntryTable::Entry EntryTable::get(const Connection& connection, std::int64_t owner, const String& name) const
{
    const std::optional<Entry> found = find(connection, owner, name);
    if (!found)
    {
        failAsRemoved(name);
    }
    return *found;
}

std::int64_t EntryTable::add(Connection& connection, std::int64_t owner, const String& name) const
{
    checkFree(connection, owner, 0, name);
    Statement insert(connection, insertEntry);
    insert.bind(owner, name, nameKey(name));
    insert.step();
    return insert.getInt64(0);
}

void EntryTable::rename(Connection& connection, std::int64_t owner, std::int64_t row, const String& name) const
{
    checkFree(connection, owner, row, name);
    Statement(connection, updateName).bind(row, name, nameKey(name)).step();
}

void EntryTable::remove(Connection& connection, std::int64_t row) const
{
    Statement(connection, deleteRow).bind(row).step();
}

void EntryTable::failAsRemoved(const String& name) const
{
    throw Core::Exception(
        Core::format(L"The {0} \"{1}\" has been removed by another program. Please refresh the list.", noun, name));
}

void EntryTable::checkFree(const Connection& connection, std::int64_t owner, std::int64_t row, const String& name) const
{
    const std::optional<Entry> other = find(connection, owner, checkedName(name));
    if (other && other->row != row)
    {
        throw Core::Exception(
            Core::format(L"The name \"{0}\" is taken by another {1}. Please choose another name.", other->name, noun));
    }
}

} // namespace Tessaro
