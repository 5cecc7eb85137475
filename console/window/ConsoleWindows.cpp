#include "ConsoleWindows.h"

#include <algorithm>

namespace Console
{

MainWindow& ConsoleWindows::open(MainWindow::Options options)
{
    options.newWindow = [this](NodeId node, const std::wstring& title)
    {
        MainWindow::Options further;
        further.top = node;
        further.title = title;
        MainWindow& window = open(std::move(further));
        window.show(SW_SHOWNORMAL);
        window.controller().selectNode(node);
    };
    return *m_windows.emplace_back(std::make_unique<MainWindow>(m_host, std::move(options)));
}

void ConsoleWindows::run(const std::function<bool()>& done)
{
    MSG message{};
    while (!m_windows.empty() && !(done && done()) && GetMessageW(&message, nullptr, 0, 0) > 0)
    {
        serve(message);
    }
}

void ConsoleWindows::serve(MSG& message)
{
    if (!translate(message))
    {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    std::erase_if(m_windows, [](const auto& window) { return window->handle() == nullptr; });
}

bool ConsoleWindows::translate(MSG& message) const
{
    return std::any_of(m_windows.begin(), m_windows.end(),
                       [&](const auto& window) { return window->translate(message); });
}

} // namespace Console
