#pragma once

#include "brimlow/hotfolder/ActionList.h"
#include "brimlow/system/String.h"
#include "brimlow/tessaro/OutputFormat.h"

#include <memory>

namespace HotFolders
{

// A folder that the server watches. Files in it that match the pattern are converted into the output folder; then the
// actions for success or for failure follow. A value: changes reach the server through HotFolderCollection only. A
// reference that it gives is good until it changes.
class HotFolder
{
  public:
    // No folders yet, pattern "*.*", PDF, monitored, page index 0, no stylesheet, no actions.
    HotFolder() noexcept = default;

    // The last component of the input folder's path, or the whole path where it has only one.
    Core::String getDisplayName() const;

    // The input folder.
    const Core::String& getFolder() const noexcept;
    void setFolder(const Core::String& folder);

    const Core::String& getFileMatchPattern() const noexcept;
    void setFileMatchPattern(const Core::String& pattern);

    bool isMonitoringEnabled() const noexcept;
    void setEnableMonitoring(bool enable);

    const Core::String& getOutputFolder() const noexcept;
    void setOutputFolder(const Core::String& folder);

    Tessaro::OutputFormat getOutputFormat() const noexcept;
    void setOutputFormat(Tessaro::OutputFormat format);

    // Which page becomes the picture when the output format is one of the picture formats; the first is 0.
    int getPageIndex() const noexcept;
    void setPageIndex(int index);

    bool applyFolderXslTemplate() const noexcept;
    void setApplyFolderXslTemplate(bool apply);

    // The stylesheet file; it counts only while applyFolderXslTemplate().
    const Core::String& getFolderXslTemplate() const noexcept;
    void setFolderXslTemplate(const Core::String& file);

    // What relative references in the files are resolved against.
    const Core::String& getBaseUrl() const noexcept;
    void setBaseUrl(const Core::String& url);

    const ActionList& getOnSuccessActionList() const noexcept;
    void setOnSuccessActionList(const ActionList& actions);

    const ActionList& getOnFailureActionList() const noexcept;
    void setOnFailureActionList(const ActionList& actions);

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
    struct Fields;

    const Fields& fields() const noexcept;
    // The fields, for a change that other copies do not see.
    Fields& change();

    // Copies share the fields until one of them changes: a list of hot folders is copied often and seldom changed.
    // None while they are the default ones.
    std::shared_ptr<Fields> m_fields;
};

} // namespace HotFolders
