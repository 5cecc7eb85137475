#include "brimlow/system/Process.h"

#include "commonAppDataFolder.h"

#include "brimlow/system/Exception.h"
#include "platform/handles.h"

#include <knownfolders.h>
#include <shlobj.h>

namespace Core::Process
{

String askForCommonAppDataFolder()
{
    platform::TaskString folder;
    const HRESULT result = SHGetKnownFolderPath(FOLDERID_ProgramData, KF_FLAG_DEFAULT, nullptr, folder.put());
    if (FAILED(result))
    {
        throw IOException(L"The common application data folder cannot be found", static_cast<SystemError>(result));
    }
    return folder.get();
}

String getCommonAppDataFolder()
{
    static const String folder = askForCommonAppDataFolder();
    return folder;
}

} // namespace Core::Process
