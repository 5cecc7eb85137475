#include "brimlow/system/Application.h"
#include "CommonAppData.h"
#include "PrintTo.h"
#include "brimlow/system/Configuration.h"
#include "brimlow/system/Exception.h"
#include "brimlow/system/FileSystem.h"
#include "brimlow/system/Process.h"

#include <gtest/gtest.h>

using Core::String;

namespace
{

class Application : public testing::Test
{
  protected:
    static String inFolder(const wchar_t* relative)
    {
        return Core::IO::FileSystem::combinePath(Core::Process::getCommonAppDataFolder(), relative);
    }

    void setLogFolder(const wchar_t* value)
    {
        const String path = inFolder(L"Brimlow\\TSvc.config");
        Core::Configuration configuration;
        configuration.setValue(L"LogFolder", value, path);
        configuration.saveTo(path);
    }

    CommonAppData m_data;
};

TEST_F(Application, CommonFolderIsAbsoluteAndHasNoSeparatorAtTheEnd)
{
    const std::wstring folder = Core::Process::getCommonAppDataFolder().str();
    EXPECT_TRUE(toPath(folder).is_absolute());
    EXPECT_EQ(std::wstring::npos, std::wstring(L"\\/").find(folder.back()));
}

TEST_F(Application, SystemConfigFileLiesUnderTheCommonFolder)
{
    EXPECT_EQ(inFolder(L"Brimlow\\Common\\Config\\System.config"), Core::Application::getSystemConfigFilePath());
}

TEST_F(Application, FolderIsTheDefaultWithoutAFile)
{
    EXPECT_EQ(Core::Process::getCommonAppDataFolder() + L"\\Brimlow\\Log\\",
              Core::Application::getFolder(L"LogFolder", L"%APP_DATA%\\Brimlow\\Log\\"));
}

TEST_F(Application, FolderIsTheDefaultWithoutTheKey)
{
    setLogFolder(L"D:\\Logs");
    EXPECT_EQ(String(L"E:\\x"), Core::Application::getFolder(L"OtherFolder", L"E:\\x"));
}

TEST_F(Application, FolderIsTheStoredTextExpanded)
{
    const String data = Core::Process::getCommonAppDataFolder();
    const struct
    {
        const wchar_t* stored;
        String folder;
    } cases[] = {
        {L"D:\\Logs", L"D:\\Logs"},
        {L"%APP_DATA%", data},
        {L"%APP_DATA%\\L", data + L"\\L"},
        {L"%APP_DATA%\\L\\", data + L"\\L\\"},
        {L"%APP_DATA%/L/", data + L"/L/"},
        {L"D:\\%APP_DATA%", L"D:\\" + data},
        {L"Logs", L"Logs"},
        {L"..\\Logs\\", L"..\\Logs\\"},
        {L"%TEMP%\\L", L"%TEMP%\\L"},
        {L"\\\\server\\share\\L", L"\\\\server\\share\\L"},
        {L" D:\\L ", L" D:\\L "},
        {L"X%APP_DATA%Y%APP_DATA%", L"X" + data + L"Y" + data},
        {L"%app_data%\\L", L"%app_data%\\L"},
        {L"%APP_DATA", L"%APP_DATA"},
        {L"", L""},
    };
    for (const auto& [stored, folder] : cases)
    {
        setLogFolder(stored);
        EXPECT_EQ(folder, Core::Application::getFolder(L"LogFolder", L"unused"));
    }
}

TEST_F(Application, FolderIsReadAnewEveryTime)
{
    setLogFolder(L"D:\\Logs");
    EXPECT_EQ(String(L"D:\\Logs"), Core::Application::getFolder(L"LogFolder", L"unused"));
    setLogFolder(L"E:\\Logs");
    EXPECT_EQ(String(L"E:\\Logs"), Core::Application::getFolder(L"LogFolder", L"unused"));
}

TEST_F(Application, MalformedServerConfigurationIsReported)
{
    m_data.write(L"Brimlow/TSvc.config", "<configuration>");
    EXPECT_THROW(Core::Application::getFolder(L"LogFolder", L"unused"), Core::FileFormatException);
}

} // namespace
