#pragma once

#include "CommonAppData.h"
#include "brimlow/tessaro/ServerTemplates.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

// A machine without applications, and what tests ask about it.
class ApplicationDisk
{
  public:
    ApplicationDisk();

    // "Brimlow\ServerTemplates".
    const std::filesystem::path& folder() const noexcept { return m_folder; }
    std::filesystem::path data() const { return m_folder.parent_path() / "Data"; }
    // The full path of a name in that folder.
    Core::String path(const Core::String& relative) const;

    // Adds an application with that name, MSXML and the users, and returns it.
    Tessaro::ServerApplication add(const Core::String& name, const std::vector<Core::String>& users = {});
    // Makes a file outside, and returns a template or resource file with its path.
    Tessaro::Template templateFile(const wchar_t* name, std::string_view content = "content") const;
    Tessaro::ResourceFile resourceFile(const wchar_t* name, std::string_view content = "content") const;

    // Everything below the folder: "App/", "App/letter.xsl=content", in alphabetical order.
    std::vector<std::string> files() const;
    // Everything in the collections, as another program sees it: "App engine=1 users=Guest,alice", "App/a.xsl",
    // "App/Images/", "App/Images/logo.png", in order.
    static std::vector<std::string> records();

    // Where files are that are to be added.
    const TemporaryFolder& outside() const noexcept { return m_outside; }

  private:
    CommonAppData m_data;
    TemporaryFolder m_outside;
    std::filesystem::path m_folder;
};

// The application, template, … of that name as it is stored now.
Tessaro::ServerApplication applicationNamed(const Core::String& name);
