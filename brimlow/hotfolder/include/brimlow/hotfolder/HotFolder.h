#pragma once

#include "brimlow/hotfolder/ActionList.h"
#include "brimlow/system/String.h"
#include "brimlow/tessaro/OutputFormat.h"

namespace HotFolders
{

// A folder that the server watches. Files in it that match the pattern are converted into the output folder; then the
// actions for success or for failure follow. A value: changes reach the server through HotFolderCollection only.
class HotFolder
{
  public:
    // No folders yet, pattern "*.*", PDF, monitored, page index 0, no stylesheet, no actions.
    HotFolder();

    // The last component of the input folder's path, or the whole path where it has only one.
    Core::String getDisplayName() const;

    // The input folder.
    const Core::String& getFolder() const noexcept { return m_folder; }
    void setFolder(const Core::String& folder) { m_folder = folder; }

    const Core::String& getFileMatchPattern() const noexcept { return m_fileMatchPattern; }
    void setFileMatchPattern(const Core::String& pattern) { m_fileMatchPattern = pattern; }

    bool isMonitoringEnabled() const noexcept { return m_monitoringEnabled; }
    void setEnableMonitoring(bool enable) noexcept { m_monitoringEnabled = enable; }

    const Core::String& getOutputFolder() const noexcept { return m_outputFolder; }
    void setOutputFolder(const Core::String& folder) { m_outputFolder = folder; }

    Tessaro::OutputFormat getOutputFormat() const noexcept { return m_outputFormat; }
    void setOutputFormat(Tessaro::OutputFormat format) noexcept { m_outputFormat = format; }

    // Which page becomes the picture when the output format is one of the picture formats; the first is 0.
    int getPageIndex() const noexcept { return m_pageIndex; }
    void setPageIndex(int index) noexcept { m_pageIndex = index; }

    bool applyFolderXslTemplate() const noexcept { return m_applyFolderXslTemplate; }
    void setApplyFolderXslTemplate(bool apply) noexcept { m_applyFolderXslTemplate = apply; }

    // The stylesheet file; it counts only while applyFolderXslTemplate().
    const Core::String& getFolderXslTemplate() const noexcept { return m_folderXslTemplate; }
    void setFolderXslTemplate(const Core::String& file) { m_folderXslTemplate = file; }

    // What relative references in the files are resolved against.
    const Core::String& getBaseUrl() const noexcept { return m_baseUrl; }
    void setBaseUrl(const Core::String& url) { m_baseUrl = url; }

    const ActionList& getOnSuccessActionList() const noexcept { return m_onSuccessActionList; }
    void setOnSuccessActionList(const ActionList& actions) { m_onSuccessActionList = actions; }

    const ActionList& getOnFailureActionList() const noexcept { return m_onFailureActionList; }
    void setOnFailureActionList(const ActionList& actions) { m_onFailureActionList = actions; }

    // Returns true when the server can work with the hot folder. Otherwise returns false and sets message to one
    // sentence about the first thing that is wrong; message is left alone when nothing is. The rules, in this order:
    //   input folder: given, a full path, and with checkFolders an existing folder; the output folder likewise;
    //   the two differ, compared as Windows compares paths;
    //   pattern: given and without path separators;
    //   stylesheet, where it is applied: given, a full path, and an existing file;
    //   page index: not negative;
    //   actions: one that moves names a folder, one that calls a web service an http or https URL.
    bool validate(bool checkFolders, Core::String& message) const;

  private:
    friend class HotFolderTable;

    // Which stored hot folder this is a copy of: a GUID, empty before it is stored.
    Core::String m_identity;

    Core::String m_folder;
    Core::String m_fileMatchPattern;
    bool m_monitoringEnabled = true;
    Core::String m_outputFolder;
    Tessaro::OutputFormat m_outputFormat = Tessaro::OutputFormat::Pdf;
    int m_pageIndex = 0;
    bool m_applyFolderXslTemplate = false;
    Core::String m_folderXslTemplate;
    Core::String m_baseUrl;
    ActionList m_onSuccessActionList;
    ActionList m_onFailureActionList;
};

} // namespace HotFolders
