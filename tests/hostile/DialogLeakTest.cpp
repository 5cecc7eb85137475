#include "DialogPlay.h"
#include "LeakTest.h"
#include "UnseenDialogs.h"

#include "kit/ServerFiles.h"

#include "platform/handles.h"

#include <algorithm>

namespace Hostile
{
namespace
{

// It is there for other programs: nothing in the plug-in opens it.
constexpr int dialogForOthers = 291;

class DialogLeak : public LeakTest, public testing::WithParamInterface<DialogUse>
{
};

TEST_P(DialogLeak, openAndCloseLeaveNothing)
{
    const DialogUse& use = GetParam();
    DialogPlay play(instance(), view());
    play.choose(use);
    play.play();
    ASSERT_EQ(std::set<int>(use.resources.begin(), use.resources.end()), play.resources()) << play.record();
    ASSERT_EQ(use.windows, play.windows()) << play.record();
    ASSERT_EQ(use.messages, play.messages()) << play.record();
    ASSERT_EQ(use.pickers, play.pickers()) << play.record();
    const int plays = 1 + expectLevel([&] { play.play(); });
    EXPECT_EQ(use.windows * plays, play.windows());
    EXPECT_EQ(use.messages * plays, play.messages());
}

INSTANTIATE_TEST_SUITE_P(All, DialogLeak, testing::ValuesIn(dialogUses().begin(), dialogUses().end()),
                         [](const auto& use) { return use.param.name; });

INT_PTR CALLBACK ofAnotherProgram(HWND dialog, UINT message, WPARAM control, LPARAM)
{
    return message == WM_INITDIALOG || (message == WM_COMMAND && control == IDOK && EndDialog(dialog, IDOK));
}

using DialogForOthersLeak = LeakTest;

TEST_F(DialogForOthersLeak, openAndCloseLeaveNothing)
{
    const HINSTANCE plugin = GetModuleHandleW(L"TMgmt.dll");
    HastyUser user([](HWND dialog, int) { HastyUser::click(dialog, IDOK); });
    const int shown = expectLevel(
        [&] { EXPECT_EQ(IDOK, showUnseen(plugin, MAKEINTRESOURCEW(dialogForOthers), frame(), ofAnotherProgram, 0)); });
    EXPECT_EQ(shown, user.seen());
}

BOOL CALLBACK collect(HMODULE, LPCWSTR, LPWSTR name, LONG_PTR numbers)
{
    reinterpret_cast<std::set<int>*>(numbers)->insert(LOWORD(reinterpret_cast<ULONG_PTR>(name)));
    return TRUE;
}

// A dialog that is new needs a use of its own.
TEST(DialogUses, areThereForEveryDialog)
{
    const platform::Library plugin(LoadLibraryExW((Acceptance::ServerFiles::programFolder() / L"TMgmt.dll").c_str(),
                                                  nullptr, LOAD_LIBRARY_AS_DATAFILE));
    std::set<int> expected;
    EnumResourceNamesW(plugin.get(), RT_DIALOG, collect, reinterpret_cast<LONG_PTR>(&expected));
    std::set<int> used{dialogForOthers};
    for (const DialogUse& use : dialogUses())
    {
        used.insert(use.resources.begin(), use.resources.end());
    }
    EXPECT_EQ(expected, used);
}

} // namespace
} // namespace Hostile
