#pragma once

#include "brimlow/system/String.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

// File system paths of texts and back. The paths' own conversions depend on the locale.
std::filesystem::path toPath(const Core::String& text);
Core::String fromPath(const std::filesystem::path& path);

// A link to a folder, removed in the end if it is still there.
class FolderLink
{
  public:
    FolderLink(const std::filesystem::path& target, const std::filesystem::path& link);
    FolderLink(const FolderLink&) = delete;
    FolderLink& operator=(const FolderLink&) = delete;
    ~FolderLink();

  private:
    std::filesystem::path m_link;
};

// An empty folder of its own for one test, removed afterwards with all that is in it.
class TemporaryFolder
{
  public:
    TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    const std::filesystem::path& folder() const noexcept { return m_folder; }
    // The full path of a name in the folder, for the libraries.
    Core::String path(const wchar_t* name) const;

    void write(const wchar_t* name, std::string_view content) const;
    std::string read(const wchar_t* name) const;
    // The names in the folder, in alphabetical order.
    std::vector<Core::String> names() const;

  private:
    std::filesystem::path m_folder;
};
