#include "checkDatabase.h"

#include "HotFolderStore.h"
#include "HotFolderTable.h"
#include "brimlow/system/AtomicFile.h"
#include "brimlow/system/Exception.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

using Core::String;
using HotFolders::HotFolder;
using HotFolders::HotFolderStore;

namespace
{

void require(bool holds, const char* rule)
{
    if (!holds)
    {
        std::fprintf(stderr, "database: %s\n", rule);
        std::abort();
    }
}

std::filesystem::path toPath(const String& text)
{
    const std::string bytes = text.toUtf8();
    return std::u8string(bytes.begin(), bytes.end());
}

void writeFile(const String& path, std::string_view content)
{
    std::filesystem::remove(toPath(path + L"-journal"));
    std::ofstream(toPath(path), std::ios::binary).write(content.data(), static_cast<std::streamsize>(content.size()));
}

// Whether the header says that the tables have the version of today, so that nothing needs to be upgraded.
bool isUpToDate(std::string_view content)
{
    constexpr std::size_t versionAt = 60; // four bytes, big-endian
    return content.size() >= versionAt + 4 && content.substr(versionAt, 4) == std::string_view("\0\0\0\1", 4);
}

// Goes over everything that a hot folder holds.
void look(const HotFolder& folder)
{
    String message;
    folder.validate(false, message);
    folder.getDisplayName();
    folder.getOnSuccessActionList().getDescription();
    folder.getOnFailureActionList().getDescription();
}

template <class Change>
void tryTo(Change change)
{
    try
    {
        change();
    }
    catch (const Core::Exception& exception)
    {
        require(!exception.getMessage().empty(), "a refusal has a reason");
    }
}

} // namespace

void checkDatabase(const String& path, std::string_view content)
{
    writeFile(path, content);
    const Database::DatabaseFile file{path, HotFolders::HotFolderTable::schema, std::chrono::milliseconds(0)};
    HotFolderStore store;
    HotFolderStore::List list;
    try
    {
        list = store.get(file);
    }
    catch (const Core::Exception& exception)
    {
        require(exception.getMessage().find(path) != String::npos, "a refusal names the file");
        return;
    }
    require(!isUpToDate(content) || Core::IO::AtomicFile::read(path) == content, "reading leaves the file as it is");
    for (const HotFolder& folder : *list)
    {
        look(folder);
    }

    HotFolder folder;
    folder.setFolder(L"C:\\In");
    folder.setOutputFolder(L"C:\\Out");
    folder.setOnSuccessActionList({HotFolders::Action()});
    tryTo([&] { store.add(file, list, folder); });
    if (!list->empty())
    {
        folder = list->front();
        folder.setFolder(L"C:\\Other");
        folder.setOutputFolder(L"C:\\Out");
        tryTo([&] { store.update(file, list, folder); });
        tryTo([&] { store.remove(file, list, folder); });
    }
    tryTo([&] { HotFolderStore().get(file); });
}
