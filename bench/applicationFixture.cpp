#include "applicationFixture.h"

#include "Fixtures.h"

#include "kit/ServerFiles.h"

#include <brimlow/tessaro/ServerTemplates.h>
#include <brimlow/tessaro/UserCollection.h>

#include <fstream>
#include <string>

namespace Bench
{
namespace
{

std::wstring numbered(const wchar_t* name, std::size_t number)
{
    return name + std::to_wstring(number);
}

void addModelApplication()
{
    const std::filesystem::path root = Acceptance::ServerFiles::folder() / L"ServerTemplates";
    Tessaro::ServerApplication model;
    model.setApplicationPath((root / L"Application 0").wstring());
    for (std::size_t user = 0; user < usersOfEach; ++user)
    {
        model.addUser(numbered(L"user", user));
    }
    Tessaro::ServerTemplates applications;
    applications.addNewApplication(model);
    Tessaro::ServerApplication& stored = applications.getAt(0);
    for (std::size_t number = 0; number < templatesOfEach; ++number)
    {
        const std::filesystem::path file = std::filesystem::path(L"C:\\bench") / numbered(L"template", number);
        std::ofstream(file) << "template";
        Tessaro::Template added;
        added.setTemplatePath(file.wstring());
        stored.addNewTemplate(added);
    }
    for (std::size_t number = 0; number < foldersOfEach; ++number)
    {
        stored.addNewResource(numbered(L"folder", number));
    }
}

} // namespace

void makeApplications(std::size_t applications, std::size_t users)
{
    Fixtures::make("nothing", 0);
    // The library makes the database, one user and one application; the script copies them.
    Tessaro::User model;
    model.setUsername(L"user0");
    model.setEnable(true);
    Tessaro::UserCollection().addNewUser(model);
    if (applications > 0)
    {
        addModelApplication();
    }
    Fixtures::make("users", users);
    Fixtures::make("applications", applications);
}

} // namespace Bench
