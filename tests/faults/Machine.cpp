#include "Machine.h"

#include "TemporaryFolder.h"
#include "brimlow/system/Process.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <vector>

namespace fs = std::filesystem;

namespace
{

bool isNeverTheSame(const fs::path& file)
{
    const fs::path ending = file.extension();
    return ending == ".db" || ending == ".p12" || ending == ".password";
}

std::string lineFor(const fs::directory_entry& entry, const fs::path& folder)
{
    std::ostringstream line;
    line << std::oct << static_cast<unsigned>(entry.status().permissions()) << ' '
         << fromPath(entry.path().lexically_relative(folder)).toUtf8();
    if (!entry.is_directory() && !isNeverTheSame(entry))
    {
        std::ifstream file(entry.path(), std::ios::binary);
        line << '=' << std::string(std::istreambuf_iterator<char>(file), {});
    }
    return line.str();
}

} // namespace

Machine::Machine()
{
    fs::create_directories(m_place / "data");
    use(m_place / "data");
}

Machine::~Machine()
{
    std::error_code ignored;
    fs::remove_all(m_place, ignored);
}

fs::path Machine::folder()
{
    return toPath(Core::Process::getCommonAppDataFolder());
}

void Machine::keep() const
{
    fs::remove_all(m_place / "kept");
    fs::copy(folder(), m_place / "kept", fs::copy_options::recursive);
}

void Machine::restore() const
{
    fs::remove_all(folder());
    fs::copy(m_place / "kept", folder(), fs::copy_options::recursive);
}

void Machine::wait() const
{
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder()))
    {
        age(entry);
    }
}

std::string Machine::list() const
{
    std::vector<std::string> lines;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder()))
    {
        lines.push_back(lineFor(entry, folder()));
    }
    std::sort(lines.begin(), lines.end());
    std::string list;
    for (const std::string& line : lines)
    {
        list += line + '\n';
    }
    return list;
}

void Machine::write(const fs::path& relative, std::string_view content)
{
    const fs::path file = folder() / relative;
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary).write(content.data(), static_cast<std::streamsize>(content.size()));
}
