#include "ScreenshotRun.h"

#include "Failure.h"
#include "MenuCommand.h"
#include "Screenshot.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace Console
{

namespace
{

constexpr UINT tickMilliseconds = 50;
// The same picture for so many ticks: whatever opens or loads is finished.
constexpr int quietTicksNeeded = 4;
constexpr ULONGLONG longestRun = 60'000;

ScreenshotRun* running = nullptr;

BOOL CALLBACK addWindow(HWND window, LPARAM lParam)
{
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process == GetCurrentProcessId() && IsWindowVisible(window))
    {
        reinterpret_cast<std::vector<HWND>*>(lParam)->push_back(window);
    }
    return TRUE;
}

// The program's visible top-level windows, front to back. Property sheets run on threads of their own.
std::vector<HWND> visibleWindows()
{
    std::vector<HWND> windows;
    EnumWindows(addWindow, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

// The dialog in front, null when there is none. Tool tips and drop-down lists are no dialogs.
HWND frontDialog(HWND main)
{
    for (const HWND window : visibleWindows())
    {
        if (window != main && (GetWindowLongPtrW(window, GWL_STYLE) & WS_CAPTION) == WS_CAPTION &&
            IsWindowEnabled(window))
        {
            return window;
        }
    }
    return nullptr;
}

// Also on the page in front of a property sheet, which is a dialog within the dialog. dialog may be null.
HWND controlIn(HWND dialog, int id)
{
    const HWND control = GetDlgItem(dialog, id);
    if (control != nullptr || dialog == nullptr)
    {
        return control;
    }
    HWND page = FindWindowExW(dialog, nullptr, L"#32770", nullptr);
    while (page != nullptr && !IsWindowVisible(page))
    {
        page = FindWindowExW(dialog, page, L"#32770", nullptr);
    }
    return GetDlgItem(page, id);
}

} // namespace

ScreenshotRun::ScreenshotRun(MainWindow& window, const CommandLine& line,
                             std::function<void(const std::wstring&)> giveUp)
    : m_window(window), m_line(line), m_giveUp(std::move(giveUp)), m_deadline(GetTickCount64() + longestRun)
{
    running = this;
    SetForegroundWindow(window.handle());
    SetTimer(window.handle(), reinterpret_cast<UINT_PTR>(this), tickMilliseconds, tick);
}

ScreenshotRun::~ScreenshotRun()
{
    KillTimer(m_window.handle(), reinterpret_cast<UINT_PTR>(this));
    running = nullptr;
}

void CALLBACK ScreenshotRun::tick(HWND, UINT, UINT_PTR, DWORD) noexcept
{
    if (running == nullptr || running->done())
    {
        return;
    }
    try
    {
        running->advance();
    }
    catch (...)
    {
        running->fail(describeFailure());
    }
}

void ScreenshotRun::advance()
{
    if (GetTickCount64() > m_deadline)
    {
        m_giveUp(m_problem.empty() ? L"The picture was not done within a minute." : m_problem);
        return;
    }
    if (!settled())
    {
        return;
    }
    m_quietTicks = 0;
    const HWND dialog = frontDialog(m_window.handle());
    switch (m_stage)
    {
    case Stage::command:
        m_stage = m_line.steps.empty() ? Stage::picture : Stage::steps;
        if (m_line.command)
        {
            runCommand();
        }
        return;
    case Stage::steps:
        runStep(dialog);
        return;
    case Stage::picture:
        takePicture(dialog);
        m_stage = Stage::closing;
        return;
    case Stage::closing:
        if (dialog != nullptr)
        {
            closeDialog(dialog);
        }
        else if (!m_commandRunning)
        {
            m_stage = Stage::done;
        }
        return;
    case Stage::done:
        return;
    }
}

// Whether the windows on the screen stayed the same for a while.
bool ScreenshotRun::settled()
{
    std::wstring scene;
    for (const HWND window : visibleWindows())
    {
        RECT place{};
        GetWindowRect(window, &place);
        scene += std::to_wstring(reinterpret_cast<UINT_PTR>(window)) + L":" + std::to_wstring(place.left) + L"," +
                 std::to_wstring(place.top) + L"," + std::to_wstring(place.right) + L"," +
                 std::to_wstring(place.bottom) + L";";
    }
    const bool waiting = m_window.controller().hasPending() && !m_commandRunning;
    m_quietTicks = scene == m_scene && !waiting ? m_quietTicks + 1 : 0;
    m_scene = std::move(scene);
    return m_quietTicks >= quietTicksNeeded;
}

void ScreenshotRun::runCommand()
{
    // The command may show a dialog: then this returns only when the later stages have closed it.
    m_commandRunning = true;
    bool found = false;
    ViewController& controller = m_window.controller();
    controller.act(
        [&]
        {
            View& view = controller.view();
            if (!m_line.row)
            {
                found = runFrom(view.nodeMenu(view.selectedNode()));
                if (found || view.rowCount() == 0)
                {
                    return;
                }
                view.selectRows({0});
            }
            found = runFrom(view.rowMenu());
        });
    m_commandRunning = false;
    if (!found)
    {
        fail(L"There is no command \"" + *m_line.command + L"\" here, or it is disabled.");
    }
}

bool ScreenshotRun::runFrom(ContextMenu menu)
{
    const unsigned command = findMenuCommand(menu.items(), *m_line.command);
    if (command != 0)
    {
        menu.run(command);
    }
    return command != 0;
}

void ScreenshotRun::runStep(HWND dialog)
{
    const DialogStep& step = m_line.steps[m_step++];
    if (m_step == m_line.steps.size())
    {
        m_stage = Stage::picture;
    }
    const HWND control = controlIn(dialog, step.control);
    if (control == nullptr)
    {
        fail(L"There is no control " + std::to_wstring(step.control) + L" in the open dialog.");
    }
    else if (step.text)
    {
        SetWindowTextW(control, step.text->c_str());
    }
    else
    {
        // Posted: what it opens runs a loop of its own.
        PostMessageW(control, BM_CLICK, 0, 0);
    }
}

void ScreenshotRun::takePicture(HWND dialog)
{
    RECT area{};
    GetWindowRect(m_window.handle(), &area);
    // Dialogs may be larger than the window, and may lie beside it.
    for (const HWND window : visibleWindows())
    {
        RECT place{};
        GetWindowRect(window, &place);
        if (dialog != nullptr)
        {
            UnionRect(&area, &area, &place);
        }
    }
    saveScreenshot(area, m_line.screenshot);
}

void ScreenshotRun::closeDialog(HWND dialog)
{
    // Wizards and boxes with a single answer do not all understand the same.
    switch (m_closeTries++ % 3)
    {
    case 0:
        PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
        return;
    case 1:
        PostMessageW(dialog, WM_CLOSE, 0, 0);
        return;
    default:
        PostMessageW(dialog, WM_COMMAND, IDOK, 0);
        return;
    }
}

void ScreenshotRun::fail(const std::wstring& problem)
{
    if (m_problem.empty())
    {
        m_problem = problem;
    }
    m_stage = Stage::closing;
}

} // namespace Console
