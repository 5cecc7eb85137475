#include "Server.h"

#include "kit/ServerFiles.h"
#include "sampleData.h"

namespace Hostile
{

namespace fs = std::filesystem;
namespace ServerFiles = Acceptance::ServerFiles;

Server::Server() : m_aside(L"C:\\HostileServer")
{
    ServerFiles::reset();
    fs::remove_all(m_aside);
    const fs::path samples = ServerFiles::programFolder() / L"sample-data";
    fs::copy(samples / L"Brimlow", ServerFiles::folder(), fs::copy_options::recursive);
    for (const wchar_t* const name : {L"one.log", L"two.log", L"three.log"})
    {
        ServerFiles::write(ServerFiles::folder() / L"Log" / name, "1 started\r\n");
    }
    SampleData::addHotFolders();
    SampleData::addUsers();
    SampleData::addApplications(samples / L"files");
    SampleData::addCertificate();
    fs::copy(ServerFiles::folder(), m_aside, fs::copy_options::recursive);
}

Server::~Server()
{
    ServerFiles::reset();
    fs::remove_all(m_aside);
}

void Server::restore() const
{
    ServerFiles::reset();
    fs::copy(m_aside, ServerFiles::folder(), fs::copy_options::recursive);
}

} // namespace Hostile
