#pragma once

#include "TemporaryFolder.h"

#include <string>

// The openssl command, working in a folder of its own, as somebody who knows nothing of the library.
class OpensslCommand
{
  public:
    // Runs "openssl <arguments>" by the shell and returns what it prints. Fails the test when the command fails.
    std::string run(const std::string& arguments) const;

    const TemporaryFolder& folder() const noexcept { return m_folder; }
    Core::String path(const wchar_t* name) const { return m_folder.path(name); }

  private:
    TemporaryFolder m_folder;
};
