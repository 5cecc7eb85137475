#include "CommonAppData.h"

#include "brimlow/system/Process.h"

#include <cstdlib>
#include <fstream>

namespace fs = std::filesystem;

namespace
{

fs::path dataFolder()
{
    return toPath(Core::Process::getCommonAppDataFolder());
}

} // namespace

#ifdef _WIN32

CommonAppData::CommonAppData()
{
    if (fs::exists(dataFolder() / "Brimlow"))
    {
        fs::rename(dataFolder() / "Brimlow", dataFolder() / "Brimlow.aside");
    }
}

CommonAppData::~CommonAppData()
{
    std::error_code ignored;
    fs::remove_all(dataFolder() / "Brimlow", ignored);
    fs::rename(dataFolder() / "Brimlow.aside", dataFolder() / "Brimlow", ignored);
}

#else

CommonAppData::CommonAppData()
{
    setenv("PROGRAMDATA", m_folder.folder().c_str(), 1);
}

CommonAppData::~CommonAppData()
{
    unsetenv("PROGRAMDATA");
}

#endif

void CommonAppData::write(const wchar_t* relativePath, std::string_view content) const
{
    const fs::path path = dataFolder() / relativePath;
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary).write(content.data(), static_cast<std::streamsize>(content.size()));
}
