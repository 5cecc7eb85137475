#include "Machine.h"
#include "Save.h"
#include "soundness.h"

#include "ApplicationStore.h"
#include "TemporaryFolder.h"
#include "TessaroStore.h"
#include "brimlow/system/FileSystem.h"
#include "brimlow/tessaro/ServerTemplates.h"

#include <functional>
#include <sstream>
#include <stdexcept>

namespace ApplicationSaves
{
namespace
{

using namespace Tessaro;
using Core::String;

String sourceOf(const wchar_t* name)
{
    return fromPath(Machine::folder() / L"outside" / name);
}

Template templateFile(const wchar_t* name)
{
    Template file;
    file.setTemplatePath(sourceOf(name));
    return file;
}

ResourceFile resourceFile(const wchar_t* name)
{
    ResourceFile file;
    file.setResourceFilePath(sourceOf(name));
    return file;
}

void add(const wchar_t* name)
{
    ServerApplication application;
    application.setApplicationPath(name);
    application.setUsers({L"Guest", L"alice"});
    ServerTemplates().addNewApplication(application);
}

// What a change does to the application "App".
std::function<void()> toApplication(const std::function<void(ServerTemplates&, ServerApplication&)>& change)
{
    return [change]
    {
        ServerTemplates applications;
        change(applications, applications.getAt(0));
    };
}

// And to its folder "Images".
std::function<void()> toFolder(const std::function<void(ResourcesFolder&)>& change)
{
    return toApplication(
        [change](ServerTemplates&, ServerApplication& application)
        {
            ResourcesFolder images = application.getResourceFolderAt(0);
            change(images);
        });
}

void prepareSources()
{
    Machine::write("outside/new.xsl", "new");
    Machine::write("outside/a.xsl", "a");
    Machine::write("outside/x.png", "x");
    Machine::write("outside/y.png", "y");
}

// Application "App" with the template a.xsl and the folder "Images", in which there are x.png and y.png; and the
// application "Other".
void prepare()
{
    prepareSources();
    add(L"App");
    ServerApplication application = ServerTemplates().getAt(0);
    application.addNewTemplate(templateFile(L"a.xsl"));
    application.addNewResource(L"Images");
    ResourcesFolder images = application.getResourceFolderAt(0);
    images.addResourceFile(resourceFile(L"x.png"));
    images.addResourceFile(resourceFile(L"y.png"));
    add(L"Other");
}

void addNew()
{
    add(L"New");
}

void addNext()
{
    add(L"Next");
}

void changeSettings(ServerApplication& application)
{
    application.setParser(XsltEngine::DotNet);
    application.addUser(L"bertha");
}

// As it is listed, and on the disk.
std::string nameOf(const String& path, std::filesystem::file_type type)
{
    if (std::filesystem::status(toPath(path)).type() != type)
    {
        throw std::runtime_error(path.toUtf8() + " is listed, but not on the disk");
    }
    return Core::IO::FileSystem::getFileName(path).toUtf8();
}

void show(const ResourcesFolder& folder, std::ostream& out)
{
    out << nameOf(folder.getResourcesFolderPath(), std::filesystem::file_type::directory) << "( ";
    for (int index = 0; index < folder.getCount(); ++index)
    {
        out << nameOf(folder.getAt(index).getResourceFilePath(), std::filesystem::file_type::regular) << ' ';
    }
    out << ") ";
}

void show(const ServerApplication& application, std::ostream& out)
{
    out << nameOf(application.getApplicationPath(), std::filesystem::file_type::directory) << "( ";
    out << (application.getParser() == XsltEngine::DotNet ? ".NET" : "MSXML") << " for ";
    for (const String& user : application.getUsers())
    {
        out << user.toUtf8() << ' ';
    }
    for (int index = 0; index < application.getTemplatesCount(); ++index)
    {
        out << nameOf(application.getAt(index).getTemplatePath(), std::filesystem::file_type::regular) << ' ';
    }
    for (int index = 0; index < application.getResourcesCount(); ++index)
    {
        show(application.getResourceFolderAt(index), out);
    }
    out << ") ";
}

// The lists. What is on the disk besides is looked at after the next save.
std::string look()
{
    TessaroStore records;
    ApplicationStore store(records, TessaroStore::machinePlace(), Core::IO::FileTree::system());
    const ApplicationStore::Pointer content = store.get();
    std::ostringstream all;
    for (const ServerApplication& application : content->applications)
    {
        show(application, all);
    }
    requireSound(TessaroStore::machinePlace().database);
    return all.str();
}

} // namespace
} // namespace ApplicationSaves

std::vector<Save> applicationSaves()
{
    using namespace ApplicationSaves;
    // What is left in a folder goes with the next addition to it.
    const auto save = [](const char* name, const std::function<void()>& change) {
        return Save{name, prepare, change, addNext, look};
    };
    const auto inApplication = [](const char* name, const std::function<void()>& change)
    {
        return Save{name, prepare, change,
                    toApplication([](ServerTemplates&, ServerApplication& application)
                                  { application.addNewResource(L"Next"); }),
                    look};
    };
    const auto inFolder = [](const char* name, const std::function<void()>& change)
    {
        return Save{name, prepare, change,
                    toFolder([](ResourcesFolder& folder) { folder.addResourceFile(resourceFile(L"a.xsl")); }), look};
    };
    return {
        {"application, the first one", [] {}, addNew, addNext, look},
        save("application, added", addNew),
        save("application, renamed", toApplication(
                                         [](ServerTemplates& applications, ServerApplication& application)
                                         {
                                             changeSettings(application);
                                             applications.renameApplication(application, L"Renamed");
                                         })),
        save("application, deleted", [] { ServerTemplates().deleteApplication(L"App"); }),
        save("application, its engine and access list",
             toApplication(
                 [](ServerTemplates& applications, ServerApplication& application)
                 {
                     changeSettings(application);
                     applications.updateApplication(application);
                 })),
        inApplication("template, copied in", toApplication([](ServerTemplates&, ServerApplication& application)
                                                           { application.addNewTemplate(templateFile(L"new.xsl")); })),
        inApplication("template, renamed",
                      toApplication([](ServerTemplates&, ServerApplication& application)
                                    { application.renameTemplate(application.getAt(0), L"b.xsl"); })),
        inApplication("template, deleted", toApplication([](ServerTemplates&, ServerApplication& application)
                                                         { application.deleteTemplate(application.getAt(0)); })),
        inApplication("resource folder, added", toApplication([](ServerTemplates&, ServerApplication& application)
                                                              { application.addNewResource(L"Fonts"); })),
        inApplication("resource folder, renamed",
                      toApplication([](ServerTemplates&, ServerApplication& application)
                                    { application.renameResource(application.getResourceFolderAt(0), L"Pictures"); })),
        inApplication("resource folder, deleted", toApplication([](ServerTemplates&, ServerApplication& application)
                                                                { application.deleteResource(L"Images"); })),
        inFolder("resource file, copied in",
                 toFolder([](ResourcesFolder& folder) { folder.addResourceFile(resourceFile(L"new.xsl")); })),
        inFolder("resource file, renamed",
                 toFolder([](ResourcesFolder& folder) { folder.renameReourceFile(folder.getAt(0), L"z.png"); })),
        inFolder("resource file, deleted",
                 toFolder([](ResourcesFolder& folder) { folder.deleteResourceFile(folder.getAt(0)); })),
    };
}
