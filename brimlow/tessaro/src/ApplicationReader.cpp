#include "ApplicationReader.h"

#include "ResourcesFolderFields.h"
#include "ServerApplicationFields.h"
#include "names.h"

#include "brimlow/database/Statement.h"
#include "brimlow/system/FileSystem.h"

#include <string>

namespace Tessaro
{

using Core::String;
using Core::IO::FileSystem::combinePath;
using Database::Connection;
using Database::Statement;

namespace
{

template <class Map>
auto find(const Map& map, std::int64_t row)
{
    const auto found = map.find(row);
    return found == map.end() ? nullptr : found->second;
}

} // namespace

std::vector<ServerApplication> ApplicationReader::readAll(const Connection& connection, const String& folder)
{
    return std::move(ApplicationReader(connection, folder, std::nullopt).m_applications);
}

std::optional<ServerApplication> ApplicationReader::readOne(const Connection& connection, const String& folder,
                                                            std::int64_t row)
{
    const ApplicationReader reader(connection, folder, row);
    return reader.m_applications.empty() ? std::nullopt : std::optional(reader.m_applications.front());
}

ApplicationReader::ApplicationReader(const Connection& connection, const String& folder,
                                     std::optional<std::int64_t> only)
    : m_connection(connection), m_only(only)
{
    readApplications(folder);
    readTemplates();
    readFolders();
    readFiles();
    readUsers();
}

// All rows are read in the order in which they are stored and find what they belong to: that is faster than to have
// them sorted, or to ask again for each application.
template <class Use>
void ApplicationReader::forEachRow(const char* select, const char* condition, const char* order, Use use)
{
    const std::string where = m_only ? std::string(" WHERE ") + condition : std::string();
    Statement row(m_connection, (select + where + " ORDER BY " + order).c_str());
    if (m_only)
    {
        row.bind(*m_only);
    }
    while (row.step())
    {
        use(row);
    }
}

void ApplicationReader::readApplications(const String& folder)
{
    forEachRow("SELECT id, identity, name, engine FROM application", "id = ?1", "id",
               [&](const Statement& row)
               {
                   const String name = row.getText(2);
                   if (nameRefusal(name))
                   {
                       return;
                   }
                   ServerApplication::Fields& fields = m_applications.emplace_back().change();
                   fields.id = {row.getInt64(0), row.getRandomId(1)};
                   fields.path = combinePath(folder, name);
                   fields.engine = static_cast<XsltEngine>(row.getInt(3));
                   m_owners.emplace(fields.id.row, &fields);
               });
}

void ApplicationReader::readTemplates()
{
    forEachRow("SELECT application, name FROM template", "application = ?1", "id",
               [&](const Statement& row)
               {
                   ServerApplication::Fields* const owner = find(m_owners, row.getInt64(0));
                   const String name = row.getText(1);
                   if (owner && !nameRefusal(name))
                   {
                       owner->templates.emplace_back().setTemplatePath(combinePath(owner->path, name));
                   }
               });
}

void ApplicationReader::readFolders()
{
    forEachRow("SELECT application, id, identity, name FROM resource_folder", "application = ?1", "id",
               [&](const Statement& row)
               {
                   ServerApplication::Fields* const owner = find(m_owners, row.getInt64(0));
                   const String name = row.getText(3);
                   if (!owner || nameRefusal(name))
                   {
                       return;
                   }
                   const auto fields = std::make_shared<ResourcesFolder::Fields>();
                   fields->id = {row.getInt64(1), row.getRandomId(2)};
                   fields->application = owner->id;
                   fields->path = combinePath(owner->path, name);
                   ResourcesFolder& folder = owner->folders.emplace_back();
                   folder.m_id = static_cast<int>(owner->folders.size()) - 1;
                   folder.m_fields = fields;
                   m_folders.emplace(fields->id.row, fields.get());
               });
}

void ApplicationReader::readFiles()
{
    forEachRow("SELECT folder, name FROM resource_file",
               "folder IN (SELECT id FROM resource_folder WHERE application = ?1)", "id",
               [&](const Statement& row)
               {
                   ResourcesFolder::Fields* const folder = find(m_folders, row.getInt64(0));
                   const String name = row.getText(1);
                   if (folder && !nameRefusal(name))
                   {
                       folder->files.emplace_back().setResourceFilePath(combinePath(folder->path, name));
                   }
               });
}

void ApplicationReader::readUsers()
{
    forEachRow("SELECT application, user FROM access", "application = ?1", "application, position",
               [&](const Statement& row)
               {
                   if (ServerApplication::Fields* const owner = find(m_owners, row.getInt64(0)))
                   {
                       owner->users.push_back(row.getText(1));
                   }
               });
}

} // namespace Tessaro
