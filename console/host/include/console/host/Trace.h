#pragma once

#include <windows.h>

#include <cstdio>
#include <filesystem>
#include <string>

namespace Console
{

enum class Direction
{
    toSnapIn,  // the console calls the snap-in
    toConsole, // the snap-in calls the console
};

// One call across the border between the console and a snap-in.
struct Call
{
    Direction direction = Direction::toSnapIn;
    // Which snap-in of the host, counted from 1 in the order of Host::addSnapIn.
    unsigned instance = 0;
    // Which view, counted from 1 in the order of Host::openView; 0 for calls of the component data.
    unsigned view = 0;
    // How many calls are on the stack below this one.
    unsigned depth = 0;
    // "IComponent::Notify"
    std::wstring method;
    // "event=MMCN_SHOW, object=node:0x…, arg=1, param=0x…"; empty when there are none.
    std::wstring arguments;
};

// A breach of what a console and a snap-in owe each other. The console carried on.
struct Complaint
{
    unsigned instance = 0; // as in Call; 0 when no snap-in can be named
    std::wstring text;     // one sentence
};

// Watches every call in both directions. All functions are called on the host's thread, must not throw and must not
// call back into the host.
class Trace
{
  public:
    virtual ~Trace() = default;
    virtual void entered(const Call& call) = 0;
    virtual void returned(const Call& call, HRESULT result) = 0;
    virtual void complained(const Complaint& complaint) = 0;
};

// Writes the trace to a UTF-8 text file, one line an event, indented by depth, each line written out at once so that
// nothing is lost when the process dies.
class FileTrace final : public Trace
{
  public:
    // Creates or empties the file. Throws std::filesystem::filesystem_error naming the file when that fails.
    explicit FileTrace(const std::filesystem::path& file);
    FileTrace(const FileTrace&) = delete;
    FileTrace& operator=(const FileTrace&) = delete;
    ~FileTrace() override;

    void entered(const Call& call) override;
    void returned(const Call& call, HRESULT result) override;
    void complained(const Complaint& complaint) override;

  private:
    void write(unsigned depth, const std::wstring& line);

    std::FILE* m_file;
};

// "MMCN_SHOW", or the number in hexadecimal when the console has no such notification.
std::wstring notificationName(unsigned event);

// "S_OK", "E_NOTIMPL", …, or "0x8007000E".
std::wstring resultName(HRESULT result);

} // namespace Console
