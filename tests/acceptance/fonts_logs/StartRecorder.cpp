// A program that files can be opened with: writes the folder that it was started in, and its further arguments, a line
// each in UTF-8, to the file that the second argument names, and then sets the event that the first one names. It has
// no console, which would stay in that folder for a while longer.
#include "platform/handles.h"

#include <filesystem>
#include <fstream>
#include <string>

namespace
{

std::string utf8(const std::filesystem::path& path)
{
    const std::u8string bytes = path.u8string();
    return {bytes.begin(), bytes.end()};
}

} // namespace

extern "C" int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR, int)
{
    const int count = __argc;
    wchar_t** const arguments = __wargv;
    if (count < 3)
    {
        return 1;
    }
    {
        std::ofstream out(std::filesystem::path(arguments[2]), std::ios::binary);
        out << utf8(std::filesystem::current_path()) << '\n';
        for (int i = 3; i < count; ++i)
        {
            out << utf8(arguments[i]) << '\n';
        }
    }
    // Whoever reads the note may delete the folder that this program was started in.
    std::filesystem::current_path(std::filesystem::current_path().root_path());
    const platform::KernelHandle written(OpenEventW(EVENT_MODIFY_STATE, FALSE, arguments[1]));
    return SetEvent(written.get()) ? 0 : 1;
}
