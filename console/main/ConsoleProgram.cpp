#include "ConsoleProgram.h"

#include "ConsoleWindows.h"
#include "Failure.h"
#include "JsonLister.h"
#include "MessageBoxPolicy.h"
#include "ScreenshotRun.h"
#include "TextLister.h"
#include "findNode.h"

#include "console/host/Registration.h"

#include <commctrl.h>
#include <ole2.h>

#include <filesystem>
#include <memory>
#include <optional>

namespace Console
{

namespace
{

class OleApartment
{
  public:
    OleApartment() : m_result(OleInitialize(nullptr)) {}
    OleApartment(const OleApartment&) = delete;
    OleApartment& operator=(const OleApartment&) = delete;
    ~OleApartment()
    {
        if (SUCCEEDED(m_result))
        {
            OleUninitialize();
        }
    }

  private:
    HRESULT m_result;
};

// A snap-in's library may load others from its own folder by name.
void allowFolderOf(const CLSID& snapIn)
{
    using AddDirectory = DLL_DIRECTORY_COOKIE(WINAPI*)(PCWSTR);
    const auto addDirectory = reinterpret_cast<AddDirectory>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "AddDllDirectory")));
    const std::filesystem::path library = inspectServer(snapIn).library;
    if (addDirectory != nullptr && library.is_absolute())
    {
        addDirectory(library.parent_path().c_str());
    }
}

std::wstring inQuotes(const std::wstring& text)
{
    return L"\"" + text + L"\"";
}

} // namespace

int ConsoleProgram::run(const std::vector<std::wstring>& arguments, int show)
{
    CommandLine line;
    try
    {
        line = parseCommandLine(arguments);
    }
    catch (const UsageError& wrong)
    {
        report(wrong.message + L" TConsole --help tells how it is used.");
        return wrongUsage;
    }
    if (line.mode == CommandLine::Mode::help)
    {
        m_out.write(usage);
        return done;
    }

    m_attended = !line.unattended();
    const OleApartment apartment;
    const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES | ICC_USEREX_CLASSES};
    InitCommonControlsEx(&controls);
    allowFolderOf(line.snapIn);
    const int code = runHost(line, show);
    Host::freeUnusedLibraries();
    if (!m_out.flush())
    {
        return fail(L"The output could not be written.");
    }
    return code;
}

int ConsoleProgram::runHost(const CommandLine& line, int show)
{
    std::unique_ptr<FileTrace> trace;
    if (!line.trace.empty())
    {
        try
        {
            trace = std::make_unique<FileTrace>(line.trace);
        }
        catch (const std::filesystem::filesystem_error&)
        {
            return fail(L"The trace file " + inQuotes(line.trace.wstring()) +
                        L" could not be created; give --trace a file in a folder that can be written to.");
        }
    }
    std::optional<MessageBoxPolicy> policy;
    if (line.unattended())
    {
        policy.emplace(
            [this](const std::wstring& caption, const std::wstring& text)
            {
                m_error.write(L"TConsole: message box " + inQuotes(caption) + L": " + text + L"\n");
                m_error.flush();
            });
    }
    Host host({.trace = trace.get()});
    SnapIn& snapIn = host.addSnapIn(line.snapIn);
    switch (line.mode)
    {
    case CommandLine::Mode::list:
    case CommandLine::Mode::json:
        return list(line, host, snapIn);
    case CommandLine::Mode::screenshot:
        return takeScreenshot(line, host, snapIn);
    default:
        return openWindow(line, host, snapIn, show);
    }
}

int ConsoleProgram::list(const CommandLine& line, Host& host, SnapIn& snapIn)
{
    if (!snapIn.load())
    {
        return fail(snapIn.problem());
    }
    ViewListener nobody;
    const auto view = host.openView(nobody);
    const NodeId node = find(line, host, snapIn);
    if (node == NodeId::none)
    {
        return failed;
    }
    const Sink sink = [this](std::wstring_view text) { m_out.write(text); };
    if (line.mode == CommandLine::Mode::json)
    {
        JsonLister lister(sink);
        listNodes(host.tree(), *view, node, lister);
    }
    else
    {
        TextLister lister(sink);
        listNodes(host.tree(), *view, node, lister);
    }
    return snapIn.state() == SnapIn::State::ready ? done : fail(snapIn.problem());
}

int ConsoleProgram::openWindow(const CommandLine& line, Host& host, SnapIn& snapIn, int show)
{
    ConsoleWindows windows(host);
    MainWindow::Options options;
    options.size = line.size;
    MainWindow& window = windows.open(options);
    window.show(show);
    // A snap-in that cannot be loaded: the window says so in its pane.
    const NodeId node = snapIn.load() ? find(line, host, snapIn) : snapIn.root();
    if (node == NodeId::none || !select(line, window, node))
    {
        return failed;
    }
    windows.run();
    return done;
}

int ConsoleProgram::takeScreenshot(const CommandLine& line, Host& host, SnapIn& snapIn)
{
    ConsoleWindows windows(host);
    MainWindow::Options options;
    options.size = line.size;
    options.remember = false;
    MainWindow& window = windows.open(options);
    window.show(SW_SHOWNORMAL);
    const NodeId node = snapIn.load() ? find(line, host, snapIn) : snapIn.root();
    if (node == NodeId::none || !select(line, window, node))
    {
        return failed;
    }
    ScreenshotRun run(window, line,
                      [this](const std::wstring& problem)
                      {
                          fail(problem);
                          m_error.flush();
                          ExitProcess(failed);
                      });
    windows.run([&] { return run.done(); });
    if (snapIn.state() != SnapIn::State::ready)
    {
        return fail(snapIn.problem());
    }
    return run.problem().empty() ? done : fail(run.problem());
}

NodeId ConsoleProgram::find(const CommandLine& line, const Host& host, const SnapIn& snapIn)
{
    NodePath missing;
    const NodeId node = findNode(host.tree(), snapIn.root(), line.select, missing);
    if (node == NodeId::none)
    {
        fail(L"There is no node " + inQuotes(formatNodePath(missing)) + L" below " +
             inQuotes(host.tree().text(snapIn.root())) + L"; TConsole --list prints all.");
    }
    return node;
}

bool ConsoleProgram::select(const CommandLine& line, MainWindow& window, NodeId node)
{
    ViewController& controller = window.controller();
    controller.selectNode(node);
    controller.tree().open(node, true);
    const SnapIn* const snapIn = controller.host().tree().snapIn(node);
    if (!line.row || snapIn == nullptr || snapIn->state() != SnapIn::State::ready)
    {
        return true;
    }
    const View& view = controller.view();
    for (int row = 0; row < view.rowCount(); ++row)
    {
        if (view.rowText(row, 0) == *line.row)
        {
            controller.selectRow(row);
            return true;
        }
    }
    fail(L"There is no row " + inQuotes(*line.row) + L" in " + inQuotes(controller.host().tree().text(node)) + L".");
    return false;
}

int ConsoleProgram::fail(const std::wstring& sentence)
{
    report(sentence);
    return failed;
}

void ConsoleProgram::report(const std::wstring& text)
{
    m_error.write(L"TConsole: " + text + L"\n");
    if (m_attended && !m_error.isConnected())
    {
        MessageBoxW(nullptr, text.c_str(), L"TConsole", MB_ICONERROR);
    }
}

} // namespace Console
