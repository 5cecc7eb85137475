#include "TessaroStore.h"

#include "ApplicationReader.h"
#include "ApplicationTable.h"
#include "MoveJournal.h"
#include "UserTable.h"

#include "brimlow/database/contentMark.h"
#include "brimlow/system/FileSystem.h"
#include "brimlow/system/Process.h"

namespace Tessaro
{

namespace
{

using Database::Connection;

void create(Connection& connection, int)
{
    ApplicationTable::create(connection);
    UserTable::create(connection);
    MoveJournal::create(connection);
    Database::createContentMark(
        connection, {"application", "template", "resource_folder", "resource_file", "access", "user", "guest"});
}

Content load(const Connection& connection)
{
    return {.applications = ApplicationReader::readAll(connection, TessaroStore::machinePlace().applications),
            .users = UserTable::load(connection),
            .guestEnabled = UserTable::isGuestEnabled(connection)};
}

} // namespace

Place TessaroStore::machinePlace()
{
    using Core::IO::FileSystem::combinePath;
    const Core::String common = Core::Process::getCommonAppDataFolder();
    return {.database = {combinePath(common, L"Brimlow\\Data\\Tessaro.db"), {1, &create}},
            .applications = combinePath(common, L"Brimlow\\ServerTemplates")};
}

TessaroStore& TessaroStore::instance()
{
    static TessaroStore store;
    return store;
}

TessaroStore::TessaroStore() : m_snapshot(&load) {}

TessaroStore::Pointer TessaroStore::get(const Place& place)
{
    return m_snapshot.get(place.database);
}

} // namespace Tessaro
