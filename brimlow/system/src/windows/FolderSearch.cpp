#include "FolderSearch.h"

#include <string_view>

namespace Core::IO
{

// "*" takes everything: the system's own patterns compare short names too, so that "*.log" would give "a.log1". Short
// names are left out and many entries are read in one go.
FolderSearch::FolderSearch(const std::wstring& folder)
    : m_search(FindFirstFileExW((folder + L"\\*").c_str(), FindExInfoBasic, &m_entry, FindExSearchNameMatch, nullptr,
                                FIND_FIRST_EX_LARGE_FETCH)),
      m_found(static_cast<bool>(m_search))
{
    if (m_found && isDots())
    {
        next();
    }
}

void FolderSearch::next() noexcept
{
    do
    {
        m_found = FindNextFileW(m_search.get(), &m_entry);
    } while (m_found && isDots());
}

bool FolderSearch::isDots() const noexcept
{
    const std::wstring_view name = m_entry.cFileName;
    return name == L"." || name == L"..";
}

} // namespace Core::IO
