#include "templates/TemplatesTest.h"

#include "kit/windows.h"

namespace Acceptance
{

using Tessaro::ResourcesFolder;
using Tessaro::ServerApplication;
using Tessaro::ServerTemplates;

namespace
{

ServerApplication& find(ServerTemplates& templates, const std::wstring& name)
{
    for (int index = 0; index < templates.getCount(); ++index)
    {
        if (templates.getAt(index).getDisplayName().str() == name)
        {
            return templates.getAt(index);
        }
    }
    throw std::runtime_error("no application " + narrow(name));
}

ResourcesFolder find(const ServerApplication& application, const std::wstring& folder)
{
    for (int index = 0; index < application.getResourcesCount(); ++index)
    {
        if (application.getResourceFolderAt(index).getDisplayName().str() == folder)
        {
            return application.getResourceFolderAt(index);
        }
    }
    throw std::runtime_error("no resource folder " + narrow(folder));
}

} // namespace

void TemplatesTest::SetUp()
{
    ConsoleTest::SetUp();
    Registry::preferRestart(false);
}

std::wstring TemplatesTest::makeFile(const std::wstring& name, std::string_view content)
{
    const auto file = ServerFiles::folder() / L"Documents" / name;
    ServerFiles::write(file, content);
    return file;
}

void TemplatesTest::addApplication(const std::wstring& name)
{
    ServerApplication application;
    application.setApplicationPath(serverTemplates(name).wstring());
    application.addUser(L"Guest");
    ServerTemplates().addNewApplication(application);
}

void TemplatesTest::addApplications(const Texts& names)
{
    for (const auto& name : names)
    {
        addApplication(name);
    }
}

void TemplatesTest::addTemplate(const std::wstring& application, const std::wstring& name)
{
    ServerTemplates templates;
    Tessaro::Template file;
    file.setTemplatePath(makeFile(name));
    find(templates, application).addNewTemplate(file);
}

void TemplatesTest::addFolder(const std::wstring& application, const std::wstring& folder)
{
    ServerTemplates templates;
    find(templates, application).addNewResource(folder);
}

void TemplatesTest::addFile(const std::wstring& application, const std::wstring& folder, const std::wstring& name)
{
    ServerTemplates templates;
    Tessaro::ResourceFile file;
    file.setResourceFilePath(makeFile(name));
    find(find(templates, application), folder).addResourceFile(file);
}

void TemplatesTest::grant(const std::wstring& application, const std::wstring& user)
{
    ServerTemplates templates;
    ServerApplication& found = find(templates, application);
    found.addUser(user);
    templates.updateApplication(found);
}

void TemplatesTest::removeApplication(const std::wstring& name)
{
    ServerTemplates().deleteApplication(serverTemplates(name).wstring());
}

void TemplatesTest::addUser(const std::wstring& name, bool enabled)
{
    Tessaro::User user;
    user.setUsername(name);
    user.setEnable(enabled);
    Tessaro::UserCollection().addNewUser(user);
}

ServerApplication TemplatesTest::stored(const std::wstring& application)
{
    ServerTemplates templates;
    return find(templates, application);
}

TemplatesTest::Texts TemplatesTest::storedApplications()
{
    ServerTemplates templates;
    Texts names;
    for (int index = 0; index < templates.getCount(); ++index)
    {
        names.push_back(templates.getAt(index).getDisplayName().str());
    }
    return names;
}

TemplatesTest::Texts TemplatesTest::storedTemplates(const std::wstring& application)
{
    const ServerApplication found = stored(application);
    Texts names;
    for (int index = 0; index < found.getTemplatesCount(); ++index)
    {
        names.push_back(found.getAt(index).getDisplayName().str());
    }
    return names;
}

TemplatesTest::Texts TemplatesTest::storedFolders(const std::wstring& application)
{
    const ServerApplication found = stored(application);
    Texts names;
    for (int index = 0; index < found.getResourcesCount(); ++index)
    {
        names.push_back(found.getResourceFolderAt(index).getDisplayName().str());
    }
    return names;
}

TemplatesTest::Texts TemplatesTest::storedFiles(const std::wstring& application, const std::wstring& folder)
{
    const ResourcesFolder files = find(stored(application), folder);
    Texts names;
    for (int index = 0; index < files.getCount(); ++index)
    {
        names.push_back(files.getAt(index).getDisplayName().str());
    }
    return names;
}

TemplatesTest::Texts TemplatesTest::storedUsers(const std::wstring& application)
{
    Texts names;
    for (const Core::String& user : stored(application).getUsers())
    {
        names.push_back(user.str());
    }
    return names;
}

std::filesystem::path TemplatesTest::serverTemplates(const std::wstring& below)
{
    const auto folder = ServerFiles::folder() / L"ServerTemplates";
    return below.empty() ? folder : folder / below;
}

std::filesystem::path TemplatesTest::database()
{
    return ServerFiles::folder() / L"Data" / L"Tessaro.db";
}

std::wstring TemplatesTest::databaseInUse()
{
    return L"The database \"" + database().wstring() + L"\" is in use by another program. Please try again.";
}

void TemplatesTest::enter(const std::wstring& caption, int control, const std::wstring& text,
                          std::source_location where)
{
    robot.dialog(
        caption,
        [=](ModalWindow& dialog)
        {
            dialog.type(control, text);
            dialog.press(IDOK);
        },
        Owner::frame, where);
}

void TemplatesTest::cancel(const std::wstring& caption, std::source_location where)
{
    robot.dialog(
        caption, [](ModalWindow& dialog) { dialog.press(IDCANCEL); }, Owner::frame, where);
}

void TemplatesTest::error(const std::wstring& text, std::source_location where)
{
    robot.message({.text = text, .caption = L"Error Occured", .icon = MB_ICONERROR}, where);
}

} // namespace Acceptance
