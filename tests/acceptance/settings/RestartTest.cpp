#include "kit/windows.h"
#include "settings/SettingsTest.h"

namespace Acceptance
{
namespace
{

// Edits with the service there, listening on a port of its own.
class Restart : public SettingsTest
{
  protected:
    void SetUp() override
    {
        SettingsTest::SetUp();
        storePort(m_port);
        Service::install();
    }

    static void storePort(unsigned short port)
    {
        ServerFiles::write(ServerFiles::configuration(),
                           ServerFiles::configurationWith("    <add key=\"ServerAddress\" value=\"127.0.0.1\"/>\r\n"
                                                          "    <add key=\"ServerPort\" value=\"" +
                                                          std::to_string(port) + "\"/>\r\n"));
    }

    void editBacklog(bool restart, int button = IDOK)
    {
        editor(
            [=](ModalWindow& dialog)
            {
                dialog.type(Editor::value, L"5");
                dialog.setChecked(Editor::restart, restart);
                dialog.press(button);
            });
        view().doubleClick(L"Backlog");
    }

    // The edit's robot steps in their order: the editor, then the box.
    void editBacklogInVain(const wchar_t* context, DWORD error)
    {
        typeAndConfirm(L"5");
        serviceError(context, error);
        view().doubleClick(L"Backlog");
    }

    unsigned short port() const { return m_port; }

  private:
    unsigned short m_port = Service::freePort();
};

TEST_F(Restart, bringsTheServiceUpAnewWithItsNewPort)
{
    const unsigned short newPort = Service::freePort();
    Service::start();
    ASSERT_TRUE(Service::answersOn(port()));
    ASSERT_FALSE(Service::answersOn(newPort));
    const DWORD before = Service::processId();
    openAt(listener);
    typeAndConfirm(std::to_wstring(newPort));
    view().doubleClick(L"Port");
    EXPECT_EQ(static_cast<DWORD>(SERVICE_RUNNING), Service::state());
    EXPECT_NE(before, Service::processId());
    EXPECT_TRUE(Service::answersOn(newPort));
    EXPECT_FALSE(Service::answersOn(port()));
}

TEST_F(Restart, followsAResetToo)
{
    Service::start();
    const DWORD before = Service::processId();
    openAt(listener);
    editBacklog(true, Editor::reset);
    EXPECT_EQ(static_cast<DWORD>(SERVICE_RUNNING), Service::state());
    EXPECT_NE(before, Service::processId());
}

TEST_F(Restart, doesNotFollowACancelledEdit)
{
    Service::start();
    const DWORD before = Service::processId();
    openAt(listener);
    editBacklog(true, IDCANCEL);
    EXPECT_EQ(before, Service::processId());
}

TEST_F(Restart, doesNotFollowWhenTheBoxIsUnchecked)
{
    Service::start();
    const DWORD before = Service::processId();
    openAt(listener);
    editBacklog(false);
    EXPECT_EQ(before, Service::processId());
    EXPECT_EQ(static_cast<DWORD>(SERVICE_RUNNING), Service::state());
}

TEST_F(Restart, followsWhenTheBoxIsCheckedAgain)
{
    Registry::preferRestart(false);
    Service::start();
    const DWORD before = Service::processId();
    openAt(listener);
    editBacklog(true);
    EXPECT_NE(before, Service::processId());
}

TEST_F(Restart, startsAServiceThatWasStopped)
{
    openAt(listener);
    editBacklog(true);
    EXPECT_EQ(static_cast<DWORD>(SERVICE_RUNNING), Service::state());
}

TEST_F(Restart, reportsARefusedStopOnceAndLeavesTheServiceRunning)
{
    Service::reconfigure(L"--refuse-stop");
    Service::start();
    const DWORD before = Service::processId();
    openAt(listener);
    editBacklogInVain(L"Can't stop the service", ERROR_INVALID_SERVICE_CONTROL);
    EXPECT_EQ(before, Service::processId());
    EXPECT_EQ(L"5", ServerFiles::setting(L"ServerBacklog"));
}

TEST_F(Restart, reportsARefusedStart)
{
    Service::reconfigure(L"--refuse-start");
    openAt(listener);
    editBacklogInVain(L"Can't start the service", ERROR_SERVICE_REQUEST_TIMEOUT);
    EXPECT_EQ(L"5", ServerFiles::setting(L"ServerBacklog"));
}

// What the product is for: an administrator moves the server to another port.
TEST_F(Restart, movesTheServerFromItsDefaultPortTo2099)
{
    ServerFiles::reset();
    Service::start();
    ASSERT_TRUE(Service::answersOn(1099));
    openAt(listener);
    EXPECT_EQ(L"1099", view().cell(L"Port", L"Value"));
    EXPECT_EQ(L"Yes", view().cell(L"Port", L"Is Default"));
    typeAndConfirm(L"2099");
    view().doubleClick(L"Port");
    EXPECT_EQ(L"2099", view().cell(L"Port", L"Value"));
    EXPECT_EQ(L"No", view().cell(L"Port", L"Is Default"));
    EXPECT_EQ(L"2099", ServerFiles::setting(L"ServerPort"));
    EXPECT_EQ(static_cast<DWORD>(SERVICE_RUNNING), Service::state());
    EXPECT_TRUE(Service::answersOn(2099));
    EXPECT_FALSE(Service::answersOn(1099));
}

} // namespace
} // namespace Acceptance
