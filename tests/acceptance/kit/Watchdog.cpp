#include "kit/Watchdog.h"

#include "kit/windows.h"

#include <cstdio>

namespace Acceptance
{

Watchdog::Watchdog(std::chrono::seconds limit) : m_limit(limit), m_tested(GetCurrentThreadId())
{
    m_thread = std::thread([this] { watch(); });
}

Watchdog::~Watchdog()
{
    {
        const std::lock_guard lock(m_mutex);
        m_over = true;
    }
    m_changed.notify_one();
    m_thread.join();
}

void Watchdog::OnTestStart(const testing::TestInfo& test)
{
    const std::lock_guard lock(m_mutex);
    m_test = std::string(test.test_suite_name()) + "." + test.name();
    ++m_count;
    m_changed.notify_one();
}

void Watchdog::OnTestEnd(const testing::TestInfo&)
{
    const std::lock_guard lock(m_mutex);
    m_test.clear();
    m_changed.notify_one();
}

void Watchdog::watch()
{
    std::unique_lock lock(m_mutex);
    while (!m_over)
    {
        if (m_test.empty())
        {
            m_changed.wait(lock);
            continue;
        }
        const unsigned watched = m_count;
        const auto moved = [&] { return m_over || m_test.empty() || m_count != watched; };
        if (!m_changed.wait_for(lock, m_limit, moved))
        {
            bite();
        }
    }
}

void Watchdog::bite() const
{
    std::printf("HANG: %s did not end within %lld seconds. Open windows:\n", m_test.c_str(),
                static_cast<long long>(m_limit.count()));
    for (const HWND window : openWindows(m_tested))
    {
        std::printf("%s", narrow(describeWindow(window)).c_str());
    }
    std::fflush(stdout);
    TerminateProcess(GetCurrentProcess(), exitCode);
    std::abort();
}

} // namespace Acceptance
