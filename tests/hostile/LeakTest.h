#pragma once

#include "Instance.h"
#include "ModuleMemory.h"
#include "ResourceCounts.h"
#include "Server.h"
#include "fromEnvironment.h"

#include "kit/Frame.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>

namespace Hostile
{

// A test of what a thing leaves behind that is done over and over, in a console that never fails, with a server that
// has something of everything.
class LeakTest : public testing::Test
{
  protected:
    // Another number: HOSTILE_ROUNDS in the environment.
    const int rounds = static_cast<int>(fromEnvironment("HOSTILE_ROUNDS", 1000));

    // The server is made once for all tests: none of them changes it.
    static void SetUpTestSuite() { s_server.emplace(); }
    static void TearDownTestSuite() { s_server.reset(); }

    void SetUp() override;
    void TearDown() override;

    Instance& instance() { return *m_instance; }
    View& view() { return *m_instance->views.front(); }
    HWND frame() const { return m_frame.handle(); }

    Whim m_whim{0};

    // Does it that many times and fails where more is left behind than before. What the plug-in makes once and keeps
    // is made in some rounds before the counting. Returns how many rounds that were in all.
    int expectLevel(const std::function<void()>& round);

  private:
    static std::optional<Server> s_server;

    Acceptance::Frame m_frame;

    std::optional<Instance> m_instance;
    std::optional<ModuleMemory> m_memory;
};

} // namespace Hostile
