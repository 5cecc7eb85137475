#include "StringTable.h"

namespace Console
{

MMC_STRING_ID StringTable::add(const std::wstring& text)
{
    if (const MMC_STRING_ID present = find(text); present != 0)
    {
        return present;
    }
    m_texts.emplace(++m_last, text);
    return m_last;
}

const std::wstring* StringTable::find(MMC_STRING_ID id) const
{
    const auto found = m_texts.find(id);
    return found == m_texts.end() ? nullptr : &found->second;
}

MMC_STRING_ID StringTable::find(const std::wstring& text) const
{
    for (const auto& [id, present] : m_texts)
    {
        if (present == text)
        {
            return id;
        }
    }
    return 0;
}

} // namespace Console
