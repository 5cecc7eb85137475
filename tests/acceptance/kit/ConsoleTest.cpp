#include "kit/ConsoleTest.h"

#include "kit/canUnloadNow.h"
#include "kit/windows.h"

namespace Acceptance
{

const CLSID snapInClass{0xB86BF80B, 0x252D, 0x44CD, {0x8D, 0x11, 0xD8, 0xEA, 0x4C, 0x17, 0x02, 0xED}};
const CLSID aboutClass{0x5D89C286, 0xC3C4, 0x4239, {0x85, 0xB6, 0x30, 0xE4, 0x7F, 0xE7, 0x6E, 0xF2}};

namespace
{

void checkUnload()
{
    EXPECT_EQ(S_OK, canUnloadNow()) << "something of TMgmt.dll is still referenced";
    Console::Host::freeUnusedLibraries();
    EXPECT_EQ(nullptr, GetModuleHandleW(L"TMgmt.dll")) << "the library stays loaded";
}

void checkWindows(HWND frame)
{
    for (const HWND window : openWindows(GetCurrentThreadId()))
    {
        if (window != frame)
        {
            ADD_FAILURE() << "a window is left: " << narrow(describeWindow(window));
        }
    }
}

} // namespace

void ConsoleTest::SetUp()
{
    Service::remove();
    ServerFiles::reset();
    Registry::reset();
}

void ConsoleTest::TearDown()
{
    close();
    robot.finish();
    checkWindows(frame.handle());
    Service::remove();
}

void ConsoleTest::open(int views)
{
    m_host.emplace(Console::HostOptions{.strictness = Console::Strictness::strict, .trace = &recorder});
    m_host->setFrame(frame.handle());
    Console::SnapIn& snapIn = m_host->addSnapIn(snapInClass);
    ASSERT_TRUE(snapIn.load()) << narrow(snapIn.problem());
    for (int number = 0; number < views; ++number)
    {
        m_views.emplace_back(*m_host, frame);
    }
}

void ConsoleTest::openAt(const std::wstring& node, int views)
{
    ASSERT_NO_FATAL_FAILURE(open(views));
    for (ConsoleView& view : m_views)
    {
        view.select(node);
    }
}

void ConsoleTest::close()
{
    m_views.clear();
    m_host.reset();
    checkComplaints();
    checkUnload();
}

std::vector<std::wstring> ConsoleTest::names(std::size_t number, int column)
{
    const Console::View& shown = view(number).view();
    std::vector<std::wstring> names;
    for (int row = 0; row < shown.rowCount(); ++row)
    {
        names.push_back(shown.rowText(row, column));
    }
    return names;
}

void ConsoleTest::checkComplaints()
{
    for (const std::wstring& complaint : recorder.takeComplaints())
    {
        ADD_FAILURE() << "the console complains: " << narrow(complaint);
    }
}

} // namespace Acceptance
