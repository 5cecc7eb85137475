#pragma once

#include "Instance.h"
#include "ModuleMemory.h"
#include "ResourceCounts.h"
#include "Server.h"

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
    static constexpr int rounds = 1000;

    // The server is made once for all tests: none of them changes it.
    static void SetUpTestSuite() { s_server.emplace(); }
    static void TearDownTestSuite() { s_server.reset(); }

    void SetUp() override;
    void TearDown() override;

    Instance& instance() { return *m_instance; }
    View& view() { return *m_instance->views.front(); }
    HWND frame() const { return m_frame.handle(); }

    Whim m_whim{0};

    // Does it that many times and fails where more is left behind than before. What is made once and kept, by the
    // system or by the plug-in, is made in the rounds before the counting.
    void expectLevel(const std::function<void()>& round, int count = rounds);

  private:
    static std::optional<Server> s_server;

    Acceptance::Frame m_frame;

    std::optional<Instance> m_instance;
    std::optional<ModuleMemory> m_memory;
};

} // namespace Hostile
