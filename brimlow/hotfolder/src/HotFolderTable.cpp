#include "HotFolderTable.h"

#include "ActionTable.h"
#include "HotFolderFields.h"
#include "paths.h"

#include "brimlow/database/Statement.h"
#include "brimlow/database/contentMark.h"
#include "brimlow/system/Exception.h"
#include "brimlow/system/StringFormatStream.h"

#include <algorithm>

namespace HotFolders
{

using Database::Connection;
using Database::Statement;

// The order of the rows is the order in which they were added. The two keys are what folder and pattern are compared
// by; that no two rows have both in common holds for every program that writes.
void HotFolderTable::create(Connection& connection, int)
{
    connection.execute("CREATE TABLE hot_folder ("
                       " id INTEGER PRIMARY KEY,"
                       " identity BLOB NOT NULL,"
                       " folder TEXT NOT NULL,"
                       " folder_key TEXT NOT NULL,"
                       " pattern TEXT NOT NULL,"
                       " pattern_key TEXT NOT NULL,"
                       " monitoring INTEGER NOT NULL,"
                       " output_folder TEXT NOT NULL,"
                       " output_format INTEGER NOT NULL,"
                       " page_index INTEGER NOT NULL,"
                       " apply_stylesheet INTEGER NOT NULL,"
                       " stylesheet TEXT NOT NULL,"
                       " base_url TEXT NOT NULL,"
                       " UNIQUE (folder_key, pattern_key))");
    ActionTable::create(connection);
    Database::createContentMark(connection, {"hot_folder", "action"});
}

const Database::Schema HotFolderTable::schema{1, &HotFolderTable::create};

std::vector<HotFolder> HotFolderTable::load(const Connection& connection)
{
    std::vector<HotFolder> folders;
    ActionTable::Reader actions(connection);
    Statement row(connection, "SELECT id, identity, folder, pattern, monitoring, output_folder, output_format,"
                              " page_index, apply_stylesheet, stylesheet, base_url FROM hot_folder ORDER BY id");
    while (row.step())
    {
        HotFolder::Fields& fields = folders.emplace_back().change();
        fields.row = row.getInt64(0);
        fields.identity = row.getRandomId(1);
        fields.folder = row.getText(2);
        fields.fileMatchPattern = row.getText(3);
        fields.monitoringEnabled = row.getBool(4);
        fields.outputFolder = row.getText(5);
        fields.outputFormat = static_cast<Tessaro::OutputFormat>(row.getInt(6));
        fields.pageIndex = row.getInt(7);
        fields.applyFolderXslTemplate = row.getBool(8);
        fields.folderXslTemplate = row.getText(9);
        fields.baseUrl = row.getText(10);
        actions.read(fields.row, fields.onSuccessActionList, fields.onFailureActionList);
    }
    return folders;
}

HotFolder HotFolderTable::add(Connection& connection, const HotFolder& folder)
{
    HotFolder added = folder;
    HotFolder::Fields& fields = added.change();
    // It may be a copy of one that is stored, and is another one all the same.
    fields.row = 0;
    checkUnique(connection, added);

    Statement insert(connection,
                     "INSERT INTO hot_folder (identity, folder, folder_key, pattern, pattern_key, monitoring,"
                     " output_folder, output_format, page_index, apply_stylesheet, stylesheet, base_url)"
                     " VALUES (randomblob(16), ?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11) RETURNING id, identity");
    insert.bind(fields.folder, comparisonKey(fields.folder), fields.fileMatchPattern,
                comparisonKey(fields.fileMatchPattern), fields.monitoringEnabled, fields.outputFolder,
                static_cast<int>(fields.outputFormat), fields.pageIndex, fields.applyFolderXslTemplate,
                fields.folderXslTemplate, fields.baseUrl);
    insert.step();
    fields.row = insert.getInt64(0);
    fields.identity = insert.getRandomId(1);
    ActionTable::add(connection, fields.row, fields.onSuccessActionList, fields.onFailureActionList);
    return added;
}

void HotFolderTable::update(Connection& connection, const HotFolder& folder)
{
    checkUnique(connection, folder);
    const HotFolder::Fields& fields = folder.fields();
    Statement update(connection, "UPDATE hot_folder SET folder = ?1, folder_key = ?2, pattern = ?3, pattern_key = ?4,"
                                 " monitoring = ?5, output_folder = ?6, output_format = ?7, page_index = ?8,"
                                 " apply_stylesheet = ?9, stylesheet = ?10, base_url = ?11"
                                 " WHERE id = ?12 AND identity = ?13 RETURNING id");
    update.bind(fields.folder, comparisonKey(fields.folder), fields.fileMatchPattern,
                comparisonKey(fields.fileMatchPattern), fields.monitoringEnabled, fields.outputFolder,
                static_cast<int>(fields.outputFormat), fields.pageIndex, fields.applyFolderXslTemplate,
                fields.folderXslTemplate, fields.baseUrl, fields.row, fields.identity);
    if (!update.step())
    {
        throw Core::Exception(Core::format(L"The hot folder \"{0}\" has been removed by another program. "
                                           L"Please refresh the list.",
                                           fields.folder));
    }
    ActionTable::remove(connection, fields.row);
    ActionTable::add(connection, fields.row, fields.onSuccessActionList, fields.onFailureActionList);
}

void HotFolderTable::remove(Connection& connection, const HotFolder& folder)
{
    const HotFolder::Fields& fields = folder.fields();
    // Its actions go with it.
    Statement(connection, "DELETE FROM hot_folder WHERE id = ?1 AND identity = ?2")
        .bind(fields.row, fields.identity)
        .step();
}

std::vector<HotFolder>::iterator HotFolderTable::find(std::vector<HotFolder>& folders, const HotFolder& folder)
{
    const HotFolder::Fields& sought = folder.fields();
    const auto found =
        std::lower_bound(folders.begin(), folders.end(), sought.row,
                         [](const HotFolder& each, std::int64_t row) { return each.fields().row < row; });
    const bool same =
        found != folders.end() && found->fields().row == sought.row && found->fields().identity == sought.identity;
    return same ? found : folders.end();
}

void HotFolderTable::checkUnique(Connection& connection, const HotFolder& folder)
{
    const HotFolder::Fields& fields = folder.fields();
    Statement other(connection, "SELECT folder, pattern FROM hot_folder"
                                " WHERE folder_key = ?1 AND pattern_key = ?2 AND id <> ?3");
    other.bind(comparisonKey(fields.folder), comparisonKey(fields.fileMatchPattern), fields.row);
    if (other.step())
    {
        throw Core::Exception(Core::format(L"Another hot folder already watches \"{0}\" for \"{1}\".", other.getText(0),
                                           other.getText(1)));
    }
}

} // namespace HotFolders
