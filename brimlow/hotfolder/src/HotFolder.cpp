#include "brimlow/hotfolder/HotFolder.h"

#include "HotFolderFields.h"
#include "paths.h"

namespace HotFolders
{

const HotFolder::Fields& HotFolder::fields() const noexcept
{
    static const Fields defaults;
    return m_fields ? *m_fields : defaults;
}

HotFolder::Fields& HotFolder::change()
{
    if (m_fields.use_count() != 1)
    {
        m_fields = std::make_shared<Fields>(fields());
    }
    return *m_fields;
}

Core::String HotFolder::getDisplayName() const
{
    return lastComponent(fields().folder);
}

const Core::String& HotFolder::getFolder() const noexcept
{
    return fields().folder;
}

void HotFolder::setFolder(const Core::String& folder)
{
    change().folder = folder;
}

const Core::String& HotFolder::getFileMatchPattern() const noexcept
{
    return fields().fileMatchPattern;
}

void HotFolder::setFileMatchPattern(const Core::String& pattern)
{
    change().fileMatchPattern = pattern;
}

bool HotFolder::isMonitoringEnabled() const noexcept
{
    return fields().monitoringEnabled;
}

void HotFolder::setEnableMonitoring(bool enable)
{
    change().monitoringEnabled = enable;
}

const Core::String& HotFolder::getOutputFolder() const noexcept
{
    return fields().outputFolder;
}

void HotFolder::setOutputFolder(const Core::String& folder)
{
    change().outputFolder = folder;
}

Tessaro::OutputFormat HotFolder::getOutputFormat() const noexcept
{
    return fields().outputFormat;
}

void HotFolder::setOutputFormat(Tessaro::OutputFormat format)
{
    change().outputFormat = format;
}

int HotFolder::getPageIndex() const noexcept
{
    return fields().pageIndex;
}

void HotFolder::setPageIndex(int index)
{
    change().pageIndex = index;
}

bool HotFolder::applyFolderXslTemplate() const noexcept
{
    return fields().applyFolderXslTemplate;
}

void HotFolder::setApplyFolderXslTemplate(bool apply)
{
    change().applyFolderXslTemplate = apply;
}

const Core::String& HotFolder::getFolderXslTemplate() const noexcept
{
    return fields().folderXslTemplate;
}

void HotFolder::setFolderXslTemplate(const Core::String& file)
{
    change().folderXslTemplate = file;
}

const Core::String& HotFolder::getBaseUrl() const noexcept
{
    return fields().baseUrl;
}

void HotFolder::setBaseUrl(const Core::String& url)
{
    change().baseUrl = url;
}

const ActionList& HotFolder::getOnSuccessActionList() const noexcept
{
    return fields().onSuccessActionList;
}

void HotFolder::setOnSuccessActionList(const ActionList& actions)
{
    change().onSuccessActionList = actions;
}

const ActionList& HotFolder::getOnFailureActionList() const noexcept
{
    return fields().onFailureActionList;
}

void HotFolder::setOnFailureActionList(const ActionList& actions)
{
    change().onFailureActionList = actions;
}

} // namespace HotFolders
