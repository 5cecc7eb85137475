#pragma once

#include "platform/handles.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace Acceptance
{

// While it lives, files with that extension belong to a program that notes down how it is started.
class FileAssociation
{
  public:
    // With its dot.
    explicit FileAssociation(std::wstring extension);
    FileAssociation(const FileAssociation&) = delete;
    FileAssociation& operator=(const FileAssociation&) = delete;
    ~FileAssociation();

    struct Start
    {
        // The folder that the program was started in.
        std::filesystem::path folder;
        std::vector<std::filesystem::path> arguments;
    };
    // Waits until the program was started. Throws std::runtime_error after ten seconds.
    Start waitForStart() const;

  private:
    std::wstring m_extension;
    // What such files belonged to before.
    std::optional<std::wstring> m_former;
    std::filesystem::path m_note;
    platform::KernelHandle m_written;
};

} // namespace Acceptance
