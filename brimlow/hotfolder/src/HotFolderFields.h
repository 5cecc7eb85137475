#pragma once

#include "brimlow/database/RandomId.h"
#include "brimlow/hotfolder/HotFolder.h"

#include <cstdint>

namespace HotFolders
{

struct HotFolder::Fields
{
    // Which stored hot folder this is a copy of. The row number alone will not do: it is given away again after a
    // removal, and another database has the same numbers. 0 before it is stored.
    std::int64_t row = 0;
    Database::RandomId identity{};

    Core::String folder;
    Core::String fileMatchPattern = L"*.*";
    bool monitoringEnabled = true;
    Core::String outputFolder;
    Tessaro::OutputFormat outputFormat = Tessaro::OutputFormat::Pdf;
    int pageIndex = 0;
    bool applyFolderXslTemplate = false;
    Core::String folderXslTemplate;
    Core::String baseUrl;
    ActionList onSuccessActionList;
    ActionList onFailureActionList;
};

} // namespace HotFolders
