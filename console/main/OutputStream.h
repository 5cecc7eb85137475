#pragma once

#include "platform/handles.h"

#include <string>
#include <string_view>

namespace Console
{

// Standard output or error output of a program of the windowed kind. Windows gives such a program its caller's
// handles only when they are redirected; otherwise it writes to the console that it was started from, if there is one.
class OutputStream
{
  public:
    // which: STD_OUTPUT_HANDLE or STD_ERROR_HANDLE.
    explicit OutputStream(DWORD which);
    OutputStream(const OutputStream&) = delete;
    OutputStream& operator=(const OutputStream&) = delete;
    // Flushes; what cannot be written then is lost.
    ~OutputStream();

    // False: whatever is written is lost, as the program was started without a console.
    bool isConnected() const { return m_handle != nullptr; }
    // Collects text; large amounts are written out in between.
    void write(std::wstring_view text);
    // Writes out what was collected. False when anything so far could not be written.
    bool flush();

  private:
    void writeToConsole(std::wstring_view text);
    void writeToFile(std::string_view text);

    platform::FileHandle m_opened; // the console's, when this object opened it
    HANDLE m_handle = nullptr;     // null: there is nowhere to write to
    bool m_console = false;
    bool m_failed = false;
    std::wstring m_pending;
};

} // namespace Console
