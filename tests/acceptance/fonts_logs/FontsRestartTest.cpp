#include "fonts_logs/FontsTest.h"
#include "kit/windows.h"

namespace Acceptance
{
namespace
{

// Changes of fonts with the service there.
class FontsRestart : public FontsTest
{
  protected:
    void SetUp() override
    {
        FontsTest::SetUp();
        Service::useFreePort();
        store({{L"MapFont:A", L"a"}});
        Service::install();
    }

    void confirm(bool restart)
    {
        editor(
            [restart](ModalWindow& dialog)
            {
                dialog.setChecked(FontEditor::restart, restart);
                dialog.press(IDOK);
            });
        view().doubleClick(L"A");
    }

    void expectRestarted(DWORD before)
    {
        EXPECT_EQ(static_cast<DWORD>(SERVICE_RUNNING), Service::state());
        EXPECT_NE(before, Service::processId());
    }
};

TEST_F(FontsRestart, followsAnEdit)
{
    Service::start();
    const DWORD before = Service::processId();
    openNode();
    confirm(true);
    expectRestarted(before);
}

TEST_F(FontsRestart, followsAnEditWhoseBoxIsCheckedAnew)
{
    Registry::preferRestart(false);
    Service::start();
    const DWORD before = Service::processId();
    openNode();
    confirm(true);
    expectRestarted(before);
    EXPECT_EQ((Registry::Value{REG_SZ, L"true"}), Registry::restartPreference());
}

TEST_F(FontsRestart, doesNotFollowAnEditWithTheBoxClear)
{
    Service::start();
    const DWORD before = Service::processId();
    openNode();
    confirm(false);
    EXPECT_EQ(before, Service::processId());
    EXPECT_EQ((Registry::Value{REG_SZ, L"false"}), Registry::restartPreference());
}

TEST_F(FontsRestart, doesNotFollowACancelledEdit)
{
    Service::start();
    const DWORD before = Service::processId();
    openNode();
    editor([](ModalWindow& dialog) { dialog.press(IDCANCEL); });
    view().doubleClick(L"A");
    EXPECT_EQ(before, Service::processId());
}

TEST_F(FontsRestart, followsADeletionWhereItIsPreferred)
{
    Service::start();
    const DWORD before = Service::processId();
    openNode();
    view().pressDelete(L"A");
    expectRestarted(before);
}

TEST_F(FontsRestart, doesNotFollowADeletionWhereItIsNot)
{
    Registry::preferRestart(false);
    Service::start();
    const DWORD before = Service::processId();
    openNode();
    view().pressDelete(L"A");
    EXPECT_EQ(before, Service::processId());
}

TEST_F(FontsRestart, doesNotFollowANewFont)
{
    Service::start();
    const DWORD before = Service::processId();
    openNode();
    add({.family = L"B", .file = L"b"});
    EXPECT_EQ(before, Service::processId());
}

TEST_F(FontsRestart, startsAServiceThatWasStopped)
{
    openNode();
    confirm(true);
    EXPECT_EQ(static_cast<DWORD>(SERVICE_RUNNING), Service::state());
}

TEST_F(FontsRestart, comesAfterTheNewListAndReportsWhatFails)
{
    Service::reconfigure(L"--refuse-stop");
    Service::start();
    openNode();
    enter({.family = L"B", .file = L"b"});
    robot.messageThat(
        [this](const MessageBoxSeen& box)
        {
            EXPECT_EQ(L"Can't stop the service: " + systemText(ERROR_INVALID_SERVICE_CONTROL) + L" (0x0000041C).",
                      box.text);
            EXPECT_EQ((std::vector<Cells>{{L"B", L"b", L"No", L"No"}}), view().rows()) << "listed already";
        });
    view().doubleClick(L"A");
    EXPECT_EQ((Entries{{L"MapFont:B", L"b"}}), stored());
}

// Below a key that lives only in memory Windows makes no lasting one: the preference stays unwritten and reads true.
TEST_F(FontsRestart, goesByWhatTheRegistrySaysAfterwards)
{
    Registry::makeUnwritable();
    Service::start();
    const DWORD before = Service::processId();
    openNode();
    confirm(false);
    expectRestarted(before);
}

} // namespace
} // namespace Acceptance
