#pragma once

#include <windows.h>

#include <string>

#include "brimlow/system/String.h"

namespace TMgmt
{

// A password as it was typed, which is wiped from memory when it is no longer needed.
class SecretText
{
  public:
    // Takes what a dialog's text() gave, and wipes that.
    explicit SecretText(std::wstring typed) : m_text(typed) { wipe(typed.data(), typed.size()); }
    SecretText(const SecretText&) = delete;
    SecretText& operator=(const SecretText&) = delete;
    ~SecretText() { wipe(const_cast<wchar_t*>(m_text.c_str()), m_text.length()); }

    const Core::String& get() const noexcept { return m_text; }

  private:
    static void wipe(wchar_t* units, std::size_t count) noexcept { SecureZeroMemory(units, count * sizeof(wchar_t)); }

    Core::String m_text;
};

} // namespace TMgmt
