#include "CommonAppData.h"
#include "EndEvent.h"
#include "InstalledService.h"
#include "Program.h"
#include "ServiceHost.h"
#include "Sockets.h"
#include "waitFor.h"

#include <brimlow/system/Process.h>

#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <sstream>

namespace fs = std::filesystem;

namespace
{

constexpr char greeting[] = "KV Tessaro stand-in\r\n";

std::string settings(const std::string& port, const std::string& more = {})
{
    return "<configuration><appSettings><add key=\"ServerAddress\" value=\"127.0.0.1\"/>"
           "<add key=\"ServerPort\" value=\"" +
           port + "\"/>" + more + "</appSettings></configuration>";
}

std::string setting(const std::string& key, const std::string& value)
{
    return "<add key=\"" + key + "\" value=\"" + value + "\"/>";
}

fs::path productFolder()
{
    return fs::path(Core::Process::getCommonAppDataFolder().str()) / "Brimlow";
}

std::vector<fs::path> filesIn(const fs::path& folder)
{
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(folder))
    {
        files.push_back(entry.path());
    }
    return files;
}

std::string contentOf(const fs::path& path)
{
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}

// Whether a start request leaves the service stopped. The request itself may succeed or, when the service's process is
// gone before Wine's service manager looks for it, fail with error 1053.
bool startFails(const InstalledService& service)
{
    return run(L"start") != 0 && service.reaches(SERVICE_STOPPED);
}

class Serve : public testing::Test
{
  protected:
    void write(const std::string& content) { m_data.write(L"Brimlow\\TSvc.config", content); }

    CommonAppData m_data;
    ReservedPort m_port;
};

} // namespace

TEST_F(Serve, WithoutSettingsItListensOnTheDefaultPort)
{
    InstalledService service;
    EXPECT_EQ(run(L"start"), 0u);
    EXPECT_EQ(run(L"status"), 0u);
    EXPECT_EQ(service.state(), static_cast<DWORD>(SERVICE_RUNNING));
    EXPECT_EQ(askPort(1099), greeting);
    EXPECT_EQ(run(L"stop"), 0u);
    EXPECT_EQ(run(L"status"), 3u);
    EXPECT_EQ(askPort(1099), "");
}

TEST_F(Serve, SettingsGiveThePortFromTheNextStart)
{
    m_port.giveUp();
    write(settings(m_port.text()));
    InstalledService service;
    EXPECT_EQ(run(L"start"), 0u);
    EXPECT_EQ(askPort(m_port.number()), greeting);
    EXPECT_EQ(askPort(m_port.number()), greeting);

    ReservedPort other;
    other.giveUp();
    write(settings(other.text()));
    EXPECT_EQ(run(L"stop"), 0u);
    EXPECT_EQ(run(L"start"), 0u);
    EXPECT_EQ(askPort(m_port.number()), "");
    EXPECT_EQ(askPort(other.number()), greeting);
}

TEST_F(Serve, ItStartsAgainOnThePortThatItJustServed)
{
    m_port.giveUp();
    write(settings(m_port.text()));
    InstalledService service;
    for (int round = 0; round < 3; ++round)
    {
        EXPECT_EQ(run(L"start"), 0u);
        EXPECT_EQ(askPort(m_port.number()), greeting);
        EXPECT_EQ(run(L"stop"), 0u);
    }
}

TEST_F(Serve, RunServesInTheConsoleUntilItIsEnded)
{
    m_port.giveUp();
    write(settings(m_port.text()));
    Program program(L"run");
    EXPECT_TRUE(waitFor([&] { return askPort(m_port.number()) == greeting; }));
    EXPECT_TRUE(StandIn::EndEvent::set());
    EXPECT_EQ(program.exitCode(), 0u);
}

TEST_F(Serve, TakenPortStopsTheServiceWithTheErrorOfWindows)
{
    write(settings(m_port.text()));
    InstalledService service;
    EXPECT_TRUE(startFails(service));
    EXPECT_EQ(service.status().dwWin32ExitCode, static_cast<DWORD>(WSAEADDRINUSE));
}

TEST_F(Serve, MalformedSettingsStopTheServiceWithItsOwnExitCode)
{
    InstalledService service;
    for (const std::string& content : {std::string("<configuration><appSettings>"), settings("often"),
                                       settings("65536"), settings("1099", setting("ServerBacklog", "-1"))})
    {
        write(content);
        EXPECT_TRUE(startFails(service)) << content;
        EXPECT_EQ(service.status().dwWin32ExitCode, static_cast<DWORD>(ERROR_SERVICE_SPECIFIC_ERROR)) << content;
        EXPECT_EQ(service.status().dwServiceSpecificExitCode, StandIn::ServiceHost::settingsMalformed) << content;
    }
}

TEST_F(Serve, UnreadableSettingsStopTheServiceWithTheErrorOfWindows)
{
    write(settings(m_port.text()));
    const platform::FileHandle locked(CreateFileW((productFolder() / "TSvc.config").c_str(), GENERIC_READ, 0, nullptr,
                                                  OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    ASSERT_TRUE(locked);
    InstalledService service;
    EXPECT_TRUE(startFails(service));
    EXPECT_EQ(service.status().dwWin32ExitCode, static_cast<DWORD>(ERROR_SHARING_VIOLATION));
}

TEST_F(Serve, NoLogIsWrittenAtLevelNone)
{
    m_port.giveUp();
    write(settings(m_port.text(), setting("LogLevel", "None")));
    InstalledService service;
    EXPECT_EQ(run(L"start"), 0u);
    EXPECT_EQ(run(L"stop"), 0u);
    EXPECT_FALSE(fs::exists(productFolder() / "Log"));
}

TEST_F(Serve, EachRunWritesALogThatNobodyCanDeleteMeanwhile)
{
    m_port.giveUp();
    write(settings(m_port.text(), setting("LogLevel", "Normal") + setting("ServerBacklog", "7")));
    InstalledService service;
    EXPECT_EQ(run(L"start"), 0u);
    EXPECT_EQ(askPort(m_port.number()), greeting);

    const std::vector<fs::path> logs = filesIn(productFolder() / "Log");
    ASSERT_EQ(logs.size(), 1u);
    EXPECT_TRUE(
        std::regex_match(logs[0].filename().string(), std::regex(R"(KV Tessaro \d{4}-\d\d-\d\d \d\d-\d\d-\d\d\.log)")))
        << logs[0].filename().string();
    EXPECT_FALSE(DeleteFileW(logs[0].c_str()));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_SHARING_VIOLATION));

    EXPECT_EQ(run(L"stop"), 0u);
    const std::string content = contentOf(logs[0]);
    EXPECT_NE(content.find("Listening on 127.0.0.1, port " + m_port.text() + ", backlog 7\r\n"), std::string::npos);
    EXPECT_NE(content.find("Stopped\r\n"), std::string::npos);
    EXPECT_EQ(content.find("connection"), std::string::npos);
    EXPECT_TRUE(DeleteFileW(logs[0].c_str()));
}

TEST_F(Serve, LevelsAllAndDebugLogConnectionsInTheConfiguredFolder)
{
    m_port.giveUp();
    InstalledService service;
    for (const std::string level : {"All", "Debug"})
    {
        write(settings(m_port.text(),
                       setting("LogLevel", level) + setting("LogFolder", "%APP_DATA%\\Brimlow\\Deep\\" + level)));
        EXPECT_EQ(run(L"start"), 0u);
        EXPECT_EQ(askPort(m_port.number()), greeting);
        EXPECT_EQ(run(L"stop"), 0u);
        const std::vector<fs::path> logs = filesIn(productFolder() / "Deep" / level);
        ASSERT_EQ(logs.size(), 1u) << level;
        EXPECT_NE(contentOf(logs[0]).find("Answered a connection\r\n"), std::string::npos) << level;
    }
}

TEST_F(Serve, PortThatIsTakenIsLogged)
{
    write(settings(m_port.text(), setting("LogLevel", "Normal")));
    InstalledService service;
    EXPECT_TRUE(startFails(service));
    const std::vector<fs::path> logs = filesIn(productFolder() / "Log");
    ASSERT_EQ(logs.size(), 1u);
    EXPECT_NE(contentOf(logs[0]).find("Error Can't listen on 127.0.0.1, port " + m_port.text()), std::string::npos);
}
