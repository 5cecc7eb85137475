#include "Machine.h"
#include "Save.h"

#include "TemporaryFolder.h"

#include "brimlow/system/AtomicFile.h"
#include "brimlow/system/Configuration.h"
#include "brimlow/system/Exception.h"
#include "brimlow/system/FileStream.h"
#include "brimlow/system/FileSystem.h"

#include <sstream>
#include <string>
#include <string_view>

// What is kept in single files: the server's settings, texts for the administrator, logs.

namespace FileSaves
{
namespace
{

using Core::String;

String path(const wchar_t* relative)
{
    return fromPath(Machine::folder() / relative);
}

String settings()
{
    return path(L"Brimlow/TSvc.config");
}

// As the plug-in stores a setting.
void store(const wchar_t* key, const wchar_t* value)
{
    Core::Configuration configuration;
    if (Core::IO::FileSystem::fileExists(settings()))
    {
        configuration.loadFrom(settings());
    }
    configuration.setValue(key, value, settings());
    configuration.saveTo(settings());
}

std::string lookAtSettings()
{
    Core::Configuration configuration;
    if (!Core::IO::FileSystem::fileExists(settings()))
    {
        return "no settings";
    }
    configuration.loadFrom(settings());
    std::ostringstream all;
    for (std::size_t index = 0; index < configuration.getKeyCount(); ++index)
    {
        all << configuration.getKeyAt(index).toUtf8() << '=' << configuration.getValueAt(index).toUtf8() << ' ';
    }
    return all.str();
}

void writeText(std::string_view text)
{
    Core::IO::FileStream file(path(L"request.txt"));
    file.write(text);
    file.flush();
}

std::string lookAtText()
{
    return Core::IO::AtomicFile::exists(path(L"request.txt")) ? Core::IO::AtomicFile::read(path(L"request.txt"))
                                                              : "no text";
}

std::string lookAtLogs()
{
    std::ostringstream all;
    for (const String& file : Core::IO::FileSystem::getFiles(path(L"log"), L"*.log"))
    {
        all << Core::IO::FileSystem::getFileName(file).toUtf8() << '=' << Core::IO::AtomicFile::read(file) << ' ';
    }
    return all.str();
}

void deleteLog(const wchar_t* file)
{
    if (!Core::IO::FileSystem::deleteFile(path(file)))
    {
        throw Core::Exception(L"The log file cannot be deleted.");
    }
}

void prepareSettings()
{
    Machine::write("Brimlow/TSvc.config", "<?xml version=\"1.0\"?><configuration><!-- by hand --><appSettings>"
                                          "<add key=\"ServerPort\" value=\"1099\"/></appSettings></configuration>");
}

void storePort()
{
    store(L"ServerPort", L"2000");
}

void storeBacklog()
{
    store(L"Backlog", L"7");
}

} // namespace
} // namespace FileSaves

std::vector<Save> fileSaves()
{
    using namespace FileSaves;
    return {
        {"settings, the first one", [] {}, storePort, storeBacklog, lookAtSettings},
        {"settings, a value changed", prepareSettings, storePort, storeBacklog, lookAtSettings},
        {"settings, a value back to its default", prepareSettings,
         []
         {
             Core::Configuration configuration;
             configuration.loadFrom(settings());
             configuration.deleteValue(L"ServerPort");
             configuration.saveTo(settings());
         },
         storeBacklog, lookAtSettings},
        {"text file, a new one", [] {}, [] { writeText("new"); }, [] { writeText("next"); }, lookAtText},
        {"text file, replaced", [] { Machine::write("request.txt", "old"); }, [] { writeText("new"); },
         [] { writeText("next"); }, lookAtText},
        {"log file, deleted",
         []
         {
             Machine::write("log/a.log", "a");
             Machine::write("log/b.log", "b");
             Machine::write("log/c.log", "c");
         },
         [] { deleteLog(L"log/a.log"); }, [] { deleteLog(L"log/c.log"); }, lookAtLogs},
    };
}
