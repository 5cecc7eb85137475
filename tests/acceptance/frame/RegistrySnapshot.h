#pragma once

#include <windows.h>

#include <map>
#include <string>
#include <vector>

namespace Acceptance
{

// Everything below the keys that a registration of the plug-in may touch, as it was when this was made: a line for each
// key ("HKCR\CLSID\{…}") and for each value ("HKCR\CLSID\{…} : ThreadingModel"; the default value has no name). Texts
// are kept as they are, other values as their bytes in hexadecimal.
class RegistrySnapshot
{
  public:
    // HKEY_CLASSES_ROOT and HKEY_LOCAL_MACHINE\Software\Microsoft\MMC.
    RegistrySnapshot();

    const std::map<std::wstring, std::wstring>& lines() const { return m_lines; }

    // The lines that this has and the other has not, or has with another content.
    std::map<std::wstring, std::wstring> without(const RegistrySnapshot& other) const;

    bool operator==(const RegistrySnapshot&) const = default;

  private:
    void read(HKEY parent, const std::wstring& name, const std::wstring& shownName);

    std::map<std::wstring, std::wstring> m_lines;
};

} // namespace Acceptance
