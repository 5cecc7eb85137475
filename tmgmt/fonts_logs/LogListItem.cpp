#include "tmgmt/fonts_logs/LogListItem.h"

#include "brimlow/system/FileSystem.h"

namespace TMgmt
{

LogListItem::LogListItem(Core::SmartPtr<FileReport> settingsReport)
    : Collection(ScopeNode{.displayName = L"Log Files", .image = 8, .childCount = 0}),
      m_settingsReport(std::move(settingsReport))
{
    reload();
}

HRESULT LogListItem::Command(long command, Console& console, DATA_OBJECT_TYPES type)
{
    return command == ID_DELETE_ALL_LOGS ? deleteAll(console) : Collection::Command(command, console, type);
}

HRESULT LogListItem::OnShow(bool selecting, HSCOPEITEM, Console& console)
{
    if (selecting)
    {
        console.switchSortingOff();
        console.insertColumn(0, L"Log name", 300);
        fillResultList(console);
    }
    return S_OK;
}

LogListItem::Rows LogListItem::readRows()
{
    Rows rows;
    try
    {
        const std::vector<Core::String> files = m_folder.files();
        rows.reserve(files.size());
        for (const Core::String& file : files)
        {
            rows.emplace_back(new LogListPropertyItem(*this, Core::IO::FileSystem::getFileName(file)));
        }
        m_settingsReport->succeeded();
    }
    catch (const Core::Exception& exception)
    {
        m_settingsReport->failed(exception);
    }
    return rows;
}

HRESULT LogListItem::deleteAll(Console& console)
{
    const WaitCursor wait;
    for (const Core::String& file : m_folder.files())
    {
        // A log that the server still writes stays, without a word.
        Core::IO::FileSystem::deleteFile(file);
    }
    reload();
    console.updateAllViews(*this, CCT_RESULT);
    return S_OK;
}

} // namespace TMgmt
