#include "hotfolders/HotFoldersTest.h"

namespace Acceptance
{

using HotFolders::HotFolder;
using HotFolders::HotFolderCollection;

void HotFoldersTest::SetUp()
{
    ConsoleTest::SetUp();
    Registry::preferRestart(false);
}

std::wstring HotFoldersTest::folder(const std::wstring& name)
{
    const auto path = ServerFiles::folder() / L"Documents" / name;
    std::filesystem::create_directories(path);
    return path.wstring();
}

HotFolder HotFoldersTest::hotFolder(const std::wstring& name)
{
    HotFolder hotFolder;
    hotFolder.setFolder(folder(name));
    hotFolder.setOutputFolder(folder(name + L" out"));
    return hotFolder;
}

void HotFoldersTest::store(const HotFolder& hotFolder)
{
    HotFolderCollection().addNewFolder(hotFolder);
}

void HotFoldersTest::storeAll(const std::vector<std::wstring>& names)
{
    for (const auto& name : names)
    {
        store(hotFolder(name));
    }
}

std::vector<HotFolder> HotFoldersTest::stored()
{
    const HotFolderCollection collection;
    std::vector<HotFolder> all;
    for (int index = 0; index < collection.getCount(); ++index)
    {
        all.push_back(collection.getAt(index));
    }
    return all;
}

std::vector<std::wstring> HotFoldersTest::storedNames()
{
    std::vector<std::wstring> names;
    for (const HotFolder& hotFolder : stored())
    {
        names.push_back(hotFolder.getDisplayName().str());
    }
    return names;
}

std::filesystem::path HotFoldersTest::database()
{
    return ServerFiles::folder() / L"Data" / L"HotFolders.db";
}

void HotFoldersTest::editor(Robot::Action action, std::source_location where)
{
    robot.dialog(L"", std::move(action), Owner::frame, where);
}

void HotFoldersTest::enter(const std::wstring& input, const std::wstring& output, std::source_location where)
{
    editor(
        [=](ModalWindow& dialog)
        {
            dialog.type(HotFolderEditor::input, input);
            dialog.type(HotFolderEditor::output, output);
            dialog.press(IDOK);
        },
        where);
}

void HotFoldersTest::error(const std::wstring& text, std::source_location where)
{
    robot.message({.text = text, .caption = errorCaption, .icon = MB_ICONERROR}, where);
}

} // namespace Acceptance
