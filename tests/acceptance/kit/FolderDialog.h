#pragma once

#include "kit/ModalWindow.h"

#include <string>

namespace Acceptance
{

// The system's dialog that asks for a folder, in a robot's action.
class FolderDialog
{
  public:
    static constexpr wchar_t caption[] = L"Browse for Folder";

    explicit FolderDialog(ModalWindow& window) : m_window(window) {}

    // What it says above the tree.
    std::wstring title() const;
    // Goes to the folder in the tree and presses OK.
    void choose(const std::wstring& path);
    // The same with the computer itself, which is no folder of the file system.
    void chooseComputer();

  private:
    ModalWindow& m_window;
};

} // namespace Acceptance
