// Any bytes as the journal of an interrupted change: whatever it says, nothing outside the folder of the applications
// is moved or removed, and the journal is gone afterwards.

#include "MemoryDatabase.h"
#include "MemoryFiles.h"
#include "MoveJournal.h"
#include "checks.h"
#include "rules.h"

#include "brimlow/database/Connection.h"
#include "brimlow/database/Transaction.h"
#include "brimlow/system/FileSystem.h"

#include <filesystem>
#include <fstream>

using namespace Tessaro;
using Core::String;
using Core::IO::FileSystem::combinePath;
using Database::Connection;

namespace
{

void createTables(Connection& connection, int)
{
    MoveJournal::create(connection);
    // So that contents can name it.
    connection.execute("UPDATE last_move SET id = zeroblob(16)");
}

// What stays open after the database is made: making it takes longer than everything else.
struct Stage
{
    Database::DatabaseFile file;
    String journal;
    Connection connection;
};

Stage makeStage()
{
    const MemoryDatabase database({}, "Moves.db");
    const Database::DatabaseFile file{database.path(), {1, &createTables}};
    return {file, database.journal(), *Connection::openExisting(file)};
}

void writeFile(const String& path, std::string_view content)
{
    std::ofstream file(std::filesystem::path(path.str()), std::ios::binary);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
}

} // namespace

void checkMoveJournal(std::string_view content)
{
    static Stage stage = makeStage();
    const String folder = stage.file.path + L".applications";
    MemoryFiles files(folder, stage.journal);
    files.put(combinePath(folder, L"App"), MemoryFiles::Kind::folder);
    files.put(combinePath(combinePath(folder, L"App"), L"a.xsl"), MemoryFiles::Kind::file);
    files.put(combinePath(folder, L"Link"), MemoryFiles::Kind::link);
    const ApplicationFiles applications(folder, files);
    const MoveJournal journal(stage.file, applications);

    writeFile(stage.journal, content);
    const Database::Transaction transaction(stage.connection, Database::Transaction::Kind::write);
    tryTo([&] { journal.settle(stage.connection); });
    require(files.kind(stage.journal) == MemoryFiles::Kind::none, "a journal is settled once");
}
