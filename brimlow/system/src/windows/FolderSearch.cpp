#include "FolderSearch.h"

#include <string_view>

namespace Core::IO
{

namespace
{

// "*" takes everything: the system's own patterns compare short names too, so that "*.log" would give "a.log1". In the
// long form of a path, which goes to the file system as it is, two separators are a name that there cannot be.
std::wstring everythingIn(const std::wstring& folder)
{
    return folder + (folder.ends_with(L'\\') ? L"*" : L"\\*");
}

} // namespace

// Short names are left out and many entries are read in one go.
FolderSearch::FolderSearch(const std::wstring& folder)
    : m_search(FindFirstFileExW(everythingIn(folder).c_str(), FindExInfoBasic, &m_entry, FindExSearchNameMatch, nullptr,
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
