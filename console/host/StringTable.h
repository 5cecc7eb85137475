#pragma once

#include "platform/mmc.h"

#include <map>
#include <string>

namespace Console
{

// The strings that a snap-in keeps with the console (IStringTable). Nothing is saved, so they live as long as it does.
class StringTable
{
  public:
    // The same text gets the same number again.
    MMC_STRING_ID add(const std::wstring& text);
    const std::wstring* find(MMC_STRING_ID id) const;
    // 0 when the text is not there.
    MMC_STRING_ID find(const std::wstring& text) const;
    bool remove(MMC_STRING_ID id) { return m_texts.erase(id) != 0; }
    void clear() { m_texts.clear(); }

  private:
    std::map<MMC_STRING_ID, std::wstring> m_texts;
    MMC_STRING_ID m_last = 0;
};

} // namespace Console
