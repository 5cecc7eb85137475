#pragma once

#include "kit/ConsoleView.h"
#include "kit/Frame.h"
#include "kit/Recorder.h"
#include "kit/Registry.h"
#include "kit/Robot.h"
#include "kit/ServerFiles.h"
#include "kit/Service.h"

#include <gtest/gtest.h>

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace Acceptance
{

// The plug-in, as it is registered, in a strict console. Before each test the service is gone, the maker's files and
// registry key are empty, and no console is open: a test arranges what it needs and then calls open(). Afterwards the
// console is taken down in its order, and the test fails on any complaint, any reference or window left, and on a
// library that cannot be unloaded.
class ConsoleTest : public testing::Test
{
  protected:
    void SetUp() override;
    void TearDown() override;

    // Opens a console with the plug-in and that many views on it, and loads the plug-in.
    void open(int views = 1);
    // The same, and each view shows that node.
    void openAt(const std::wstring& node, int views = 1);
    // Takes the console down and checks what it leaves; TearDown does it where the test did not.
    void close();
    bool isOpen() const { return m_host.has_value(); }

    ConsoleView& view(std::size_t number = 0) { return m_views.at(number); }
    // What a column of the list says, from top to bottom.
    std::vector<std::wstring> names(std::size_t view = 0, int column = 0);
    Console::Host& host() { return *m_host; }

    Frame frame;
    Robot robot{frame.handle()};
    Recorder recorder;

  private:
    void checkComplaints();

    std::optional<Console::Host> m_host;
    std::deque<ConsoleView> m_views;
};

// The class ids of the plug-in.
extern const CLSID snapInClass;
extern const CLSID aboutClass;

} // namespace Acceptance
