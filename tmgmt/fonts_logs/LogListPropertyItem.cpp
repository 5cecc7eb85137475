#include "tmgmt/fonts_logs/LogListPropertyItem.h"

#include <shellapi.h>

#include "brimlow/system/FileSystem.h"
#include "tmgmt/fonts_logs/LogFolder.h"
#include "tmgmt/snapin/ItemAccess.h"
#include "tmgmt/ui/messageBox.h"

namespace TMgmt
{

LogListPropertyItem::LogListPropertyItem(const CSnapInItem& parent, Core::String fileName)
    : Item(ResultNode{.displayName = L"Log Property Item", .image = 16}),
      m_parent(parent.cookie()),
      m_fileName(std::move(fileName))
{
}

const wchar_t* LogListPropertyItem::GetResultPaneColInfo(int column)
{
    return column == 0 ? m_fileName.c_str() : L"";
}

HRESULT LogListPropertyItem::Command(long command, Console& console, DATA_OBJECT_TYPES type)
{
    return command == ID_OPEN_LOG ? open() : Item::Command(command, console, type);
}

HRESULT LogListPropertyItem::OnDblClick(Console&)
{
    return open();
}

HRESULT LogListPropertyItem::OnSelect(bool, bool isSelected, Console& console)
{
    return enableVerb(MMC_VERB_DELETE, isSelected, console);
}

HRESULT LogListPropertyItem::OnDelete(Console& console)
{
    if (!Core::IO::FileSystem::deleteFile(
            Core::IO::FileSystem::combinePath(LogFolder::path().append(L"\\"), m_fileName)))
    {
        showMessage(nullptr, L"This log can't be deleted.", L"Delete Error", MB_OK | MB_ICONERROR);
        return E_FAIL;
    }
    // The list lets this row go, but the caller holds it.
    console.refreshResultList(*itemOfCookie(m_parent));
    return S_OK;
}

HRESULT LogListPropertyItem::open() const
{
    const Core::String folder = LogFolder::path();
    // The shell tells the user itself what it cannot do. Kept as is: a log is opened by its bare name, which the
    // shell looks for in that folder.
    ShellExecuteW(nullptr, L"open", m_fileName.c_str(), nullptr, folder.c_str(), SW_SHOWNORMAL);
    return S_OK;
}

} // namespace TMgmt
