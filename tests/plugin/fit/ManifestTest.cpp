// What the two programs ask of Windows, read from the files as they are built.
#include "kit/ServerFiles.h"

#include "platform/handles.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

// The manifest of that number; empty without one.
std::string manifestOf(const wchar_t* program, int number)
{
    const std::filesystem::path file = Acceptance::ServerFiles::programFolder() / program;
    const platform::Library library(LoadLibraryExW(file.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE));
    const HRSRC place = FindResourceW(library.get(), MAKEINTRESOURCEW(number), RT_MANIFEST);
    if (!place)
    {
        return {};
    }
    const auto* const text = static_cast<const char*>(LockResource(LoadResource(library.get(), place)));
    return {text, SizeofResource(library.get(), place)};
}

constexpr char commonControls6[] = "name=\"Microsoft.Windows.Common-Controls\" version=\"6.0.0.0\"";

void expectIn(const std::string& manifest, const char* wanted)
{
    EXPECT_NE(manifest.find(wanted), std::string::npos) << wanted;
}

// 2 is for a library: with 1 the process that loads it would be meant.
TEST(Manifest, ofThePluginAsksForVisualStylesForItselfAlone)
{
    expectIn(manifestOf(L"TMgmt.dll", 2), commonControls6);
    EXPECT_EQ(manifestOf(L"TMgmt.dll", 1), "");
}

TEST(Manifest, ofTheConsoleAsksForVisualStylesAndAllPixels)
{
    const std::string manifest = manifestOf(L"TConsole.exe", 1);
    expectIn(manifest, commonControls6);
    expectIn(manifest, ">PerMonitorV2, PerMonitor</dpiAwareness>");
    // Before Windows 10.
    expectIn(manifest, ">true/pm</dpiAware>");
    // As much as the user may have: others than administrators may look.
    expectIn(manifest, "level=\"highestAvailable\" uiAccess=\"false\"");
    // Windows 7 and 10: without these it is treated as an older program.
    expectIn(manifest, "{35138b9a-5d96-4fbd-8e2d-a2440225f93a}");
    expectIn(manifest, "{8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a}");
}

} // namespace
