#include "fonts_logs/FileAssociation.h"

#include "kit/Registry.h"
#include "kit/ServerFiles.h"

#include <shlobj.h>

#include <sstream>
#include <stdexcept>

namespace Acceptance
{
namespace
{

constexpr DWORD patience = 10'000; // milliseconds
// The machine's, since Wine does not look into the user's own.
constexpr wchar_t classes[] = L"Software\\Classes\\";
constexpr wchar_t fileType[] = L"KVTessaroTestFile";
constexpr wchar_t writtenEvent[] = L"KVTessaroTestFileStarted";

void setDefault(const std::wstring& key, const std::wstring& text)
{
    const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    RegSetKeyValueW(HKEY_LOCAL_MACHINE, (classes + key).c_str(), nullptr, REG_SZ, text.c_str(), size);
    SHChangeNotify(SHCNE_ASSOCCHANGED, SHCNF_IDLIST, nullptr, nullptr);
}

std::filesystem::path utf8Path(const std::string& line)
{
    return std::filesystem::path(std::u8string(line.begin(), line.end()));
}

} // namespace

FileAssociation::FileAssociation(std::wstring extension)
    : m_extension(std::move(extension)),
      m_former(Registry::text(HKEY_LOCAL_MACHINE, classes + m_extension, L"")),
      m_note(ServerFiles::folder() / L"start.txt"),
      m_written(CreateEventW(nullptr, TRUE, FALSE, writtenEvent))
{
    if (!m_written)
    {
        throw std::runtime_error("cannot make an event");
    }
    std::filesystem::create_directories(m_note.parent_path());
    const std::wstring program = (ServerFiles::programFolder() / L"StartRecorder.exe").wstring();
    setDefault(fileType + std::wstring(L"\\shell\\open\\command"),
               L"\"" + program + L"\" " + writtenEvent + L" \"" + m_note.wstring() + L"\" \"%1\"");
    setDefault(m_extension, fileType);
}

FileAssociation::~FileAssociation()
{
    if (m_former)
    {
        setDefault(m_extension, *m_former);
    }
    else
    {
        RegDeleteTreeW(HKEY_LOCAL_MACHINE, (classes + m_extension).c_str());
    }
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, (classes + std::wstring(fileType)).c_str());
    SHChangeNotify(SHCNE_ASSOCCHANGED, SHCNF_IDLIST, nullptr, nullptr);
}

FileAssociation::Start FileAssociation::waitForStart() const
{
    if (WaitForSingleObject(m_written.get(), patience) != WAIT_OBJECT_0)
    {
        throw std::runtime_error("the program was not started");
    }
    Start start;
    std::istringstream lines(ServerFiles::read(m_note));
    std::string line;
    std::getline(lines, line);
    start.folder = utf8Path(line);
    while (std::getline(lines, line))
    {
        start.arguments.push_back(utf8Path(line));
    }
    return start;
}

} // namespace Acceptance
