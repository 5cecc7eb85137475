#pragma once

#include "kit/ModalWindow.h"

#include <string>
#include <vector>

namespace Acceptance
{

// The system's dialog that asks for a file to open, in a robot's action.
class FileDialog
{
  public:
    static constexpr wchar_t caption[] = L"Open";

    explicit FileDialog(ModalWindow& window) : m_window(window) {}

    // What stands in the field for the name.
    std::wstring name() const;
    // The entries of the list of file types, and the one that is chosen.
    std::vector<std::wstring> filters() const;
    int chosenFilter() const;

    // Types a path and presses Open.
    void choose(const std::wstring& path);
    void cancel() { m_window.press(IDCANCEL); }

  private:
    int nameControl() const;

    ModalWindow& m_window;
};

} // namespace Acceptance
