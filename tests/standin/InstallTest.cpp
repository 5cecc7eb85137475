#include "CommonAppData.h"
#include "InstalledService.h"
#include "Program.h"
#include "ServiceController.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{

struct Configuration
{
    std::wstring commandLine;
    std::wstring displayName;
    DWORD startType = 0;
};

Configuration configuration()
{
    const platform::ServiceHandle service = StandIn::openService(SERVICE_QUERY_CONFIG);
    alignas(QUERY_SERVICE_CONFIGW) BYTE buffer[8192];
    auto* config = reinterpret_cast<QUERY_SERVICE_CONFIGW*>(buffer);
    DWORD needed = 0;
    if (!QueryServiceConfigW(service.get(), config, sizeof buffer, &needed))
    {
        throw std::runtime_error("QueryServiceConfig");
    }
    return {config->lpBinaryPathName, config->lpDisplayName, config->dwStartType};
}

} // namespace

TEST(Install, ServiceIsStartedOnDemandFromAQuotedPath)
{
    const InstalledService service;
    const Configuration config = configuration();
    EXPECT_EQ(config.displayName, L"KV Tessaro");
    EXPECT_EQ(config.startType, static_cast<DWORD>(SERVICE_DEMAND_START));
    EXPECT_EQ(config.commandLine, L"\"" + Program::path() + L"\" service");
}

TEST(Install, SwitchesStandInTheCommandLineAndReconfigureReplacesThem)
{
    const InstalledService service(L"--refuse-stop --wait-hint 700");
    EXPECT_EQ(configuration().commandLine, L"\"" + Program::path() + L"\" service --wait-hint 700 --refuse-stop");
    EXPECT_EQ(run(L"reconfigure --pausable"), 0u);
    EXPECT_EQ(configuration().commandLine, L"\"" + Program::path() + L"\" service --pausable");
    EXPECT_EQ(configuration().startType, static_cast<DWORD>(SERVICE_DEMAND_START));
}

TEST(Install, SecondInstallIsRefused)
{
    const InstalledService service;
    Program again(L"install");
    EXPECT_EQ(again.exitCode(), 1u);
    EXPECT_NE(again.output().find("(1073)"), std::string::npos);
}

TEST(Install, WithoutTheServiceCommandsSaySo)
{
    run(L"uninstall");
    for (const wchar_t* command : {L"start", L"stop", L"end", L"reconfigure"})
    {
        Program program(command);
        EXPECT_EQ(program.exitCode(), 1u);
        EXPECT_NE(program.output().find("use \"install\""), std::string::npos);
    }
    EXPECT_EQ(run(L"status"), 4u);
    EXPECT_EQ(run(L"uninstall"), 0u);
}

TEST(Install, BadArgumentsHaveAnExitCodeOfTheirOwn)
{
    EXPECT_EQ(run(L"bogus"), 2u);
    EXPECT_EQ(run(L"install --bogus"), 2u);
    EXPECT_EQ(run(L"--help"), 0u);
}

TEST(Install, UninstallRemovesARunningService)
{
    const CommonAppData folder;
    {
        InstalledService service(L"--refuse-stop");
        ASSERT_EQ(service.start(), 0u);
        ASSERT_TRUE(service.reaches(SERVICE_RUNNING));
    }
    EXPECT_EQ(run(L"status"), 4u);
}
