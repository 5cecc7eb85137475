#include "brimlow/system/Process.h"

#include <cstdlib>

namespace Core::Process
{

String getCommonAppDataFolder()
{
    const char* folder = std::getenv("PROGRAMDATA");
    return folder ? String::fromUtf8(folder) : L"/var/lib";
}

} // namespace Core::Process
