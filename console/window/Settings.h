#pragma once

#include <optional>
#include <string>

namespace Console
{

// What the program remembers for a user: HKEY_CURRENT_USER\Software\Brimlow\TConsole. What cannot be read is not
// there, and what cannot be written is forgotten: no window fails for its place.
class Settings
{
  public:
    // folder: a key below; empty for the program's own.
    explicit Settings(const std::wstring& folder = {});

    std::optional<std::wstring> text(const std::wstring& name) const;
    void setText(const std::wstring& name, const std::wstring& text) const;

  private:
    std::wstring m_key;
};

} // namespace Console
