#include "frame/FilledServer.h"

#include "brimlow/hotfolder/HotFolderCollection.h"
#include "certificates/installCertificates.h"

namespace Acceptance
{

void FilledServer::SetUp()
{
    TemplatesTest::SetUp();
    ServerFiles::write(ServerFiles::folder() / L"Common" / L"Config" / L"Fonts.config",
                       ServerFiles::configurationWith("    <add key=\"MapFont:A\" value=\"a.ttf\"/>\r\n"
                                                      "    <add key=\"MapFont:B\" value=\"b.ttf\"/>\r\n"));
    ServerFiles::write(ServerFiles::folder() / L"Log" / L"one.log", "");
    ServerFiles::write(ServerFiles::folder() / L"Log" / L"two.log", "");
    HotFolders::HotFolder hotFolder;
    hotFolder.setFolder(L"C:\\One");
    hotFolder.setOutputFolder(L"C:\\Out");
    HotFolders::HotFolderCollection().addNewFolder(hotFolder);
    installCertificates({L"one.example"});
    addApplication(L"Invoices");
    addTemplate(L"Invoices", L"letter.kvd");
    addFolder(L"Invoices", L"Images");
    addFile(L"Invoices", L"Images", L"logo.png");
}

} // namespace Acceptance
