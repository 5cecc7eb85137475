#include "sampleData.h"

#include "brimlow/system/FileSystem.h"
#include "brimlow/system/Process.h"
#include "brimlow/tessaro/ServerTemplates.h"

namespace SampleData
{
namespace
{

using Core::String;

// An application without files, as the library has it now.
Tessaro::ServerApplication& add(Tessaro::ServerTemplates& applications, const String& name, Tessaro::XsltEngine engine,
                                const std::vector<String>& users)
{
    using Core::IO::FileSystem::combinePath;
    const String root = combinePath(Core::Process::getCommonAppDataFolder(), L"Brimlow\\ServerTemplates");
    Tessaro::ServerApplication application;
    application.setApplicationPath(combinePath(root, name));
    application.setParser(engine);
    application.setUsers(users);
    applications.addNewApplication(application);
    return applications.getAt(applications.getCount() - 1);
}

void addTemplate(Tessaro::ServerApplication& application, const std::filesystem::path& file)
{
    Tessaro::Template added;
    added.setTemplatePath(file.wstring());
    application.addNewTemplate(added);
}

void addResource(Tessaro::ServerApplication& application, const wchar_t* folder, const std::filesystem::path& file)
{
    application.addNewResource(folder);
    Tessaro::ResourceFile added;
    added.setResourceFilePath(file.wstring());
    Tessaro::ResourcesFolder into = application.getResourceFolderAt(application.getResourcesCount() - 1);
    into.addResourceFile(added);
}

} // namespace

void addApplications(const std::filesystem::path& files)
{
    Tessaro::ServerTemplates applications;
    if (applications.getCount() > 0)
    {
        return;
    }
    Tessaro::ServerApplication& invoices =
        add(applications, L"Invoices", Tessaro::XsltEngine::Msxml, {L"Guest", L"jean.dupont", L"print-room"});
    addTemplate(invoices, files / "invoice.kvd");
    addTemplate(invoices, files / "reminder.xsl");
    addResource(invoices, L"Images", files / "logo.svg");
    addResource(invoices, L"Texts", files / "terms.txt");

    Tessaro::ServerApplication& statements =
        add(applications, L"Statements", Tessaro::XsltEngine::DotNet, {L"m_keller"});
    addTemplate(statements, files / "statement.xslt");
    addResource(statements, L"Images", files / "logo.svg");
}

} // namespace SampleData
