#include "applicationFixture.h"

#include "kit/ServerFiles.h"

#include <brimlow/tessaro/ServerTemplates.h>
#include <brimlow/tessaro/UserCollection.h>

#include <fstream>

namespace Bench
{
namespace
{

// A file to be copied into an application or a folder.
template <class Entry>
Entry fileToAdd(const wchar_t* name, void (Entry::*setPath)(const Core::String&))
{
    const std::filesystem::path path = std::filesystem::path(L"C:\\bench") / name;
    std::ofstream(path) << "content";
    Entry entry;
    (entry.*setPath)(path.wstring());
    return entry;
}

} // namespace

void makeModelApplication()
{
    Tessaro::User user;
    user.setUsername(L"user0");
    user.setEnable(true);
    Tessaro::UserCollection().addNewUser(user);

    Tessaro::ServerApplication model;
    model.setApplicationPath((Acceptance::ServerFiles::folder() / L"ServerTemplates" / L"Application 0").wstring());
    model.addUser(user.getUsername());
    Tessaro::ServerTemplates applications;
    applications.addNewApplication(model);
    Tessaro::ServerApplication& stored = applications.getAt(0);
    stored.addNewTemplate(fileToAdd(L"template0", &Tessaro::Template::setTemplatePath));
    stored.addNewResource(L"folder0");
    Tessaro::ResourcesFolder folder = stored.getResourceFolderAt(0);
    folder.addResourceFile(fileToAdd(L"file0", &Tessaro::ResourceFile::setResourceFilePath));
}

} // namespace Bench
