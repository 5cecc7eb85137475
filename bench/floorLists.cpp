#include "floorLists.h"

#include "kit/ServerFiles.h"
#include "logFolder.h"

#include <brimlow/hotfolder/HotFolderCollection.h>
#include <brimlow/security/CertIterator.h>
#include <brimlow/security/CertStore.h>
#include <brimlow/system/Configuration.h>
#include <brimlow/tessaro/UserCollection.h>

namespace Bench
{
namespace
{

const wchar_t* yesOrNo(bool yes)
{
    return yes ? L"Yes" : L"No";
}

std::vector<std::wstring> certificateCells()
{
    const auto store = Security::CertStore::getCertStoreInstance();
    store->open(true);
    Security::CertIterator certificates(*store);
    std::vector<std::wstring> cells;
    while (const auto certificate = certificates.getNext())
    {
        cells.push_back(certificate->getSerialNumber().str());
        cells.push_back(certificate->getIssuerCN().str());
        cells.push_back(certificate->getSubjectCN().str());
    }
    return cells;
}

std::vector<std::wstring> hotFolderCells()
{
    const HotFolders::HotFolderCollection hotFolders;
    std::vector<std::wstring> cells;
    cells.reserve(4 * static_cast<std::size_t>(hotFolders.getCount()));
    for (int index = 0; index < hotFolders.getCount(); ++index)
    {
        const HotFolders::HotFolder& hotFolder = hotFolders.getAt(index);
        cells.push_back(hotFolder.getDisplayName().str());
        cells.push_back(hotFolder.getFolder().str());
        cells.push_back(hotFolder.getFileMatchPattern().str());
        cells.emplace_back(yesOrNo(hotFolder.isMonitoringEnabled()));
    }
    return cells;
}

std::vector<std::wstring> privateFontCells()
{
    Core::Configuration store;
    store.loadFrom(fontsFile());
    std::vector<std::wstring> cells;
    cells.reserve(4 * store.getKeyCount());
    for (std::size_t index = 0; index < store.getKeyCount(); ++index)
    {
        cells.push_back(store.getKeyAt(index).str());
        cells.push_back(store.getValueAt(index).str());
        cells.insert(cells.end(), {yesOrNo(false), yesOrNo(false)});
    }
    return cells;
}

std::vector<std::wstring> userCells()
{
    const Tessaro::UserCollection users;
    std::vector<std::wstring> cells{L"Guest", yesOrNo(users.isGuestEnabled())};
    cells.reserve(2 * static_cast<std::size_t>(users.getCount() + 1));
    for (int index = 0; index < users.getCount(); ++index)
    {
        const Tessaro::User& user = users.getAt(index);
        cells.push_back(user.getUsername().str());
        cells.emplace_back(yesOrNo(user.isEnabled()));
    }
    return cells;
}

} // namespace

FloorNode certificateList()
{
    return {.name = L"Server Certificates",
            .columns = {L"Serial No", L"Issuer By", L"Issued To"},
            .read = certificateCells};
}

FloorNode hotFolderList()
{
    return {.name = L"Hot Folders",
            .columns = {L"Folder Name", L"Full Path", L"Pattern", L"Enabled"},
            .read = hotFolderCells};
}

FloorNode logFileList(std::size_t size)
{
    return {.name = L"Log Files", .columns = {L"Log name"}, .read = [size] { return logsIn(logFolder(size)); }};
}

FloorNode privateFontList()
{
    return {.name = L"Private Fonts",
            .columns = {L"Font Family Name", L"Font File Path", L"Is Bold", L"Is Italic"},
            .read = privateFontCells};
}

FloorNode userList()
{
    return {.name = L"Users", .columns = {L"Username", L"Enabled"}, .read = userCells};
}

Core::String fontsFile()
{
    return (Acceptance::ServerFiles::folder() / L"Common" / L"Config" / L"Fonts.config").wstring();
}

} // namespace Bench
