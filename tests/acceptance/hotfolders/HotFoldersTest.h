#pragma once

#include "brimlow/hotfolder/HotFolderCollection.h"
#include "kit/ConsoleTest.h"

namespace Acceptance
{

// Controls of the editor of a hot folder.
namespace HotFolderEditor
{
inline constexpr int input = 232;
inline constexpr int pattern = 233;
inline constexpr int stylesheet = 234;
inline constexpr int pageIndex = 235;
inline constexpr int output = 237;
inline constexpr int monitoring = 243;
inline constexpr int editOnSuccess = 246;
inline constexpr int editOnFailure = 247;
inline constexpr int format = 249;
inline constexpr int onSuccess = 261;
inline constexpr int restart = 273;
inline constexpr int applyStylesheet = 286;
} // namespace HotFolderEditor

class HotFoldersTest : public ConsoleTest
{
  protected:
    static constexpr wchar_t node[] = L"Hot Folders";
    static constexpr wchar_t add[] = L"&Add Hot Folder...";
    static constexpr wchar_t properties[] = L"&Properties";
    static constexpr wchar_t errorCaption[] = L"Error Occured";
    static constexpr wchar_t failedCaption[] = L"Validation Failed";

    // Edits do not restart the service, which is not there anyway.
    void SetUp() override;

    // An existing folder with that name, among the server's files.
    static std::wstring folder(const std::wstring& name);
    // A hot folder between two existing folders, "<name>" and "<name> out", that is not stored yet.
    static HotFolders::HotFolder hotFolder(const std::wstring& name);
    // Another program stores one.
    static void store(const HotFolders::HotFolder& hotFolder);
    // Another program stores one for each name.
    static void storeAll(const std::vector<std::wstring>& names);
    // What is stored.
    static std::vector<HotFolders::HotFolder> stored();
    static std::vector<std::wstring> storedNames();
    static std::filesystem::path database();

    // Opens the console and shows the node.
    void openNode(int views = 1) { openAt(node, views); }

    // The robot's next step: the editor comes up (or is in front again) and the action uses it.
    void editor(Robot::Action action, std::source_location where = std::source_location::current());
    // The editor comes up, these two are typed, and OK pressed.
    void enter(const std::wstring& input, const std::wstring& output,
               std::source_location where = std::source_location::current());
    void error(const std::wstring& text, std::source_location where = std::source_location::current());
};

} // namespace Acceptance
