#include "brimlow/tessaro/ServerApplication.h"

#include "ApplicationStore.h"
#include "ServerApplicationFields.h"
#include "position.h"

#include "brimlow/system/FileSystem.h"

#include <algorithm>

namespace Tessaro
{

using Core::String;

const ServerApplication::Fields& ServerApplication::fields() const noexcept
{
    static const Fields defaults;
    return m_fields ? *m_fields : defaults;
}

ServerApplication::Fields& ServerApplication::change()
{
    if (m_fields.use_count() != 1)
    {
        m_fields = std::make_shared<Fields>(fields());
    }
    return *m_fields;
}

String ServerApplication::getDisplayName() const
{
    return Core::IO::FileSystem::getFileName(fields().path);
}

const String& ServerApplication::getApplicationPath() const noexcept
{
    return fields().path;
}

void ServerApplication::setApplicationPath(const String& path)
{
    change().path = path;
}

XsltEngine ServerApplication::getParser() const noexcept
{
    return fields().engine;
}

void ServerApplication::setParser(XsltEngine engine)
{
    Fields& fields = change();
    if (!fields.formerEngine)
    {
        fields.formerEngine = fields.engine;
    }
    fields.engine = engine;
}

int ServerApplication::getTemplatesCount() const noexcept
{
    return static_cast<int>(fields().templates.size());
}

const Template& ServerApplication::getAt(int index) const
{
    return elementAt(fields().templates, index, L"The template is no longer there. Please refresh the list.");
}

void ServerApplication::addNewTemplate(const Template& file)
{
    ApplicationStore::machine().addTemplate(*this, file.getTemplatePath());
}

void ServerApplication::renameTemplate(const Template& file, const String& newPath)
{
    ApplicationStore::machine().renameTemplate(*this, file.getTemplatePath(), newPath);
}

void ServerApplication::deleteTemplate(const Template& file)
{
    ApplicationStore::machine().removeTemplate(*this, file.getTemplatePath());
}

int ServerApplication::getResourcesCount() const noexcept
{
    return static_cast<int>(fields().folders.size());
}

const ResourcesFolder& ServerApplication::getResourceFolderAt(int index) const
{
    return elementAt(fields().folders, index, L"The folder is no longer there. Please refresh the list.");
}

void ServerApplication::addNewResource(const String& name)
{
    ApplicationStore::machine().addFolder(*this, name);
}

void ServerApplication::renameResource(const ResourcesFolder& folder, const String& newPath)
{
    ApplicationStore::machine().renameFolder(*this, folder.getResourcesFolderPath(), newPath);
}

void ServerApplication::deleteResource(const String& path)
{
    ApplicationStore::machine().removeFolder(*this, path);
}

const std::vector<String>& ServerApplication::getUsers() const noexcept
{
    return fields().users;
}

void ServerApplication::setUsers(const std::vector<String>& users)
{
    Fields& fields = change();
    if (!fields.formerUsers)
    {
        fields.formerUsers = fields.users;
    }
    fields.users = users;
}

void ServerApplication::addUser(const String& name)
{
    std::vector<String> users = getUsers();
    if (std::find(users.begin(), users.end(), name) == users.end())
    {
        users.push_back(name);
        setUsers(users);
    }
}

void ServerApplication::deleteUser(const String& name)
{
    std::vector<String> users = getUsers();
    if (std::erase(users, name) > 0)
    {
        setUsers(users);
    }
}

} // namespace Tessaro
