#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

namespace Acceptance
{

// Ends the process when one test takes too long, after writing out every window that is open: a dialog that nobody
// closes would otherwise keep the run for ever.
class Watchdog : public testing::EmptyTestEventListener
{
  public:
    static constexpr int exitCode = 86;

    // Watches the tests of the thread that makes it.
    explicit Watchdog(std::chrono::seconds limit);
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;
    ~Watchdog() override;

    void OnTestStart(const testing::TestInfo& test) override;
    void OnTestEnd(const testing::TestInfo& test) override;

  private:
    void watch();
    [[noreturn]] void bite() const;

    const std::chrono::seconds m_limit;
    const DWORD m_tested;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::string m_test; // empty between tests
    unsigned m_count = 0;
    bool m_over = false;
    std::thread m_thread;
};

} // namespace Acceptance
