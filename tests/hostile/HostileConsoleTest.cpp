#include "DialogPlay.h"
#include "Mischief.h"
#include "ModuleMemory.h"
#include "NodeKinds.h"
#include "ResourceCounts.h"
#include "fromEnvironment.h"
#include "systemCaches.h"

#include "kit/Frame.h"
#include "kit/windows.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <map>
#include <span>
#include <string>
#include <vector>

namespace Hostile
{
namespace
{

const Mischief* s_mischief = nullptr;
int s_faults = 0;

// Faults in dialogs never come out of them: the system takes them on the way. So each one is told where it happens.
LONG CALLBACK tellFault(EXCEPTION_POINTERS* fault)
{
    const EXCEPTION_RECORD& record = *fault->ExceptionRecord;
    if (s_mischief &&
        (record.ExceptionCode == EXCEPTION_ACCESS_VIOLATION || record.ExceptionCode == EXCEPTION_STACK_OVERFLOW ||
         record.ExceptionCode == EXCEPTION_ILLEGAL_INSTRUCTION || record.ExceptionCode == EXCEPTION_INT_DIVIDE_BY_ZERO))
    {
        ++s_faults;
        std::printf("FAULT 0x%08lX at %p, TMgmt.dll at %p: %s\n", record.ExceptionCode, record.ExceptionAddress,
                    static_cast<void*>(GetModuleHandleW(L"TMgmt.dll")), s_mischief->current().c_str());
        std::fflush(stdout);
    }
    return EXCEPTION_CONTINUE_SEARCH;
}

class AHostileConsole : public testing::Test
{
  protected:
    void SetUp() override { m_handler = AddVectoredExceptionHandler(TRUE, tellFault); }
    void TearDown() override
    {
        s_mischief = nullptr;
        RemoveVectoredExceptionHandler(m_handler);
        EXPECT_EQ(0, s_faults);
    }

    Acceptance::Frame frame;

  private:
    void* m_handler = nullptr;
};

// What the controls of the system and the libraries in the plug-in make at the first use and keep, as the tables of the
// cryptography: every dialog comes once.
void showEveryDialog(HWND frame)
{
    Whim never(0);
    const Server server;
    Instance instance(never, frame);
    instance.expandAll();
    View& view = *instance.addView();
    DialogPlay play(instance, view);
    for (const DialogUse& use : dialogUses())
    {
        play.choose(use);
        play.play();
    }
}

// Whether a call came about every kind of node and about everything that is passed in place of one.
void expectAllTargets(const Mischief& mischief, const std::string& call, std::span<const char* const> substitutes)
{
    std::vector<const char*> targets(substitutes.begin(), substitutes.end());
    for (const NodeKind& kind : nodeKinds())
    {
        targets.push_back(kind.name);
    }
    for (const char* const target : targets)
    {
        EXPECT_TRUE(mischief.deeds().contains({call, target})) << call << ", " << target << ": never";
    }
}

void expectEverythingCame(const Mischief& mischief)
{
    constexpr std::array inPlaceOfObjects{"no object", "foreign object", "several rows", "composite",
                                          "object kept too long"};
    constexpr std::array inPlaceOfNumbers{"node that is gone", "special number", "number of nothing"};
    for (const std::string receiver : {"IComponentData", "IComponent"})
    {
        for (const char* const event :
             {" MMCN_SHOW", " MMCN_EXPAND", " MMCN_ADD_IMAGES", " MMCN_DBLCLICK", " MMCN_SELECT", " MMCN_DELETE",
              " MMCN_VIEW_CHANGE", " MMCN_REFRESH", " MMCN_BTN_CLICK", " of another event"})
        {
            expectAllTargets(mischief, receiver + "::Notify" + event, inPlaceOfObjects);
        }
        expectAllTargets(mischief, receiver + "::CompareObjects", inPlaceOfObjects);
        expectAllTargets(mischief, receiver + "::QueryDataObject", inPlaceOfNumbers);
        expectAllTargets(mischief, receiver + "::GetDisplayInfo", inPlaceOfNumbers);
    }
    for (const char* const call :
         {"IExtendContextMenu::AddMenuItems of the data", "IExtendContextMenu::Command to the data",
          "IExtendContextMenu::AddMenuItems of a view", "IExtendContextMenu::Command to a view",
          "IExtendControlbar::ControlbarNotify"})
    {
        expectAllTargets(mischief, call, inPlaceOfObjects);
    }
    for (const char* const call : {"IComponent::GetResultViewType", "IDataObject::GetData", "IDataObject::GetDataHere",
                                   "IDataObject::QueryGetData"})
    {
        expectAllTargets(mischief, call, inPlaceOfNumbers);
    }
    std::map<std::string, int> calls;
    for (const auto& [deed, count] : mischief.deeds())
    {
        calls[deed.first] += count;
    }
    for (const auto& [call, count] : calls)
    {
        std::printf("%7d %s\n", count, call.c_str());
        EXPECT_GE(count, 40) << call;
    }
    EXPECT_GE(mischief.windows().dialogs(), 100);
    EXPECT_GE(mischief.windows().messages(), 1000);
    std::printf("%7d dialogs and %d messages\n", mischief.windows().dialogs(), mischief.windows().messages());
}

// Another run: HOSTILE_SEED and HOSTILE_STEPS in the environment.
TEST_F(AHostileConsole, bringsNothingDownAndLeavesNothing)
{
    constexpr unsigned long standardSteps = 100000;
    const unsigned long steps = fromEnvironment("HOSTILE_STEPS", standardSteps);
    const ModuleMemory memory;
    fillSystemCaches(frame.handle());
    showEveryDialog(frame.handle());
    Mischief mischief(static_cast<std::uint32_t>(fromEnvironment("HOSTILE_SEED", 1)), frame.handle());
    mischief.end();
    const ResourceCounts before = countResources();
    const long blocksBefore = memory.blocks();
    s_mischief = &mischief;
    for (unsigned long step = 1; step <= steps; ++step)
    {
        mischief.step();
        if (step % 10000 == 0)
        {
            std::printf("%lu steps\n", step);
            std::fflush(stdout);
        }
    }
    mischief.settle();
    mischief.end();
    expectNoMore(before, countResources());
    EXPECT_LE(memory.blocks(), blocksBefore) << "blocks of memory";

    if (steps >= standardSteps)
    {
        expectEverythingCame(mischief);
    }
    constexpr auto npos = std::wstring::npos;
    for (const std::wstring& entry : mischief.windows().eventLog())
    {
        // The plug-in logs what it did not expect: here Windows without memory for a dialog, and a certificate of the
        // list that another program took away.
        EXPECT_TRUE(entry.find(L"cannot be shown") != npos || entry.find(L"(SmartPtr, line 118)") != npos)
            << Acceptance::narrow(entry);
    }
}

} // namespace
} // namespace Hostile
