#include "ApplicationDisk.h"

#include "brimlow/system/FileSystem.h"
#include "brimlow/system/Process.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace fs = std::filesystem;

using namespace Tessaro;
using Core::String;

ApplicationDisk::ApplicationDisk()
    : m_folder(toPath(Core::Process::getCommonAppDataFolder()) / "Brimlow" / "ServerTemplates")
{
}

String ApplicationDisk::path(const String& relative) const
{
    return Core::IO::FileSystem::combinePath(fromPath(m_folder), relative);
}

ServerApplication ApplicationDisk::add(const String& name, const std::vector<String>& users)
{
    ServerApplication application;
    application.setApplicationPath(path(name));
    application.setUsers(users);
    ServerTemplates().addNewApplication(application);
    return applicationNamed(name);
}

Template ApplicationDisk::templateFile(const wchar_t* name, std::string_view content) const
{
    m_outside.write(name, content);
    Template file;
    file.setTemplatePath(m_outside.path(name));
    return file;
}

ResourceFile ApplicationDisk::resourceFile(const wchar_t* name, std::string_view content) const
{
    m_outside.write(name, content);
    ResourceFile file;
    file.setResourceFilePath(m_outside.path(name));
    return file;
}

std::vector<std::string> ApplicationDisk::files() const
{
    std::vector<std::string> all;
    std::error_code missing;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(m_folder, missing))
    {
        const std::u8string relative = entry.path().lexically_relative(m_folder).generic_u8string();
        std::string line(relative.begin(), relative.end());
        if (entry.is_directory())
        {
            line += '/';
        }
        else
        {
            std::ifstream file(entry.path(), std::ios::binary);
            line += '=' + std::string(std::istreambuf_iterator<char>(file), {});
        }
        all.push_back(line);
    }
    std::sort(all.begin(), all.end());
    return all;
}

std::vector<std::string> ApplicationDisk::records()
{
    std::vector<std::string> all;
    ServerTemplates applications;
    for (int index = 0; index < applications.getCount(); ++index)
    {
        const ServerApplication& application = applications.getAt(index);
        const std::string name = application.getDisplayName().toUtf8();
        std::string line = name + " engine=" + std::to_string(static_cast<int>(application.getParser())) + " users=";
        for (const String& user : application.getUsers())
        {
            line += user.toUtf8() + ',';
        }
        all.push_back(line);
        for (int position = 0; position < application.getTemplatesCount(); ++position)
        {
            all.push_back(name + '/' + application.getAt(position).getDisplayName().toUtf8());
        }
        for (int position = 0; position < application.getResourcesCount(); ++position)
        {
            const ResourcesFolder& folder = application.getResourceFolderAt(position);
            const std::string path = name + '/' + folder.getDisplayName().toUtf8() + '/';
            all.push_back(path);
            for (int file = 0; file < folder.getCount(); ++file)
            {
                all.push_back(path + folder.getAt(file).getDisplayName().toUtf8());
            }
        }
    }
    return all;
}

ServerApplication applicationNamed(const String& name)
{
    ServerTemplates applications;
    for (int index = 0; index < applications.getCount(); ++index)
    {
        if (applications.getAt(index).getDisplayName() == name)
        {
            return applications.getAt(index);
        }
    }
    throw std::runtime_error("there is no application of that name");
}
