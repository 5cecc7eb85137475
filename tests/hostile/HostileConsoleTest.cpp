#include "Mischief.h"
#include "ModuleMemory.h"
#include "NodeKinds.h"
#include "ResourceCounts.h"

#include "kit/Frame.h"
#include "kit/windows.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <span>
#include <string>
#include <vector>

namespace Hostile
{
namespace
{

// Another run: HOSTILE_SEED and HOSTILE_STEPS in the environment.
unsigned long fromEnvironment(const char* name, unsigned long standard)
{
    const char* const text = std::getenv(name);
    return text ? std::strtoul(text, nullptr, 10) : standard;
}

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

struct Remains
{
    ResourceCounts resources;
    long blocks;
};

// What is there while the plug-in is loaded and not used.
Remains remains(Mischief& mischief, const ModuleMemory& memory)
{
    mischief.settle();
    mischief.end();
    return {ResourceCounts::now(), memory.blocks()};
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

TEST_F(AHostileConsole, bringsNothingDownAndLeavesNothing)
{
    constexpr unsigned long standardSteps = 100000;
    const unsigned long steps = fromEnvironment("HOSTILE_STEPS", standardSteps);
    Mischief mischief(static_cast<std::uint32_t>(fromEnvironment("HOSTILE_SEED", 1)), frame.handle());
    const ModuleMemory memory;
    s_mischief = &mischief;
    for (unsigned long step = 0; step < steps / 5; ++step)
    {
        mischief.step();
    }
    const Remains before = remains(mischief, memory);
    for (unsigned long step = steps / 5; step < steps; ++step)
    {
        mischief.step();
    }
    const Remains after = remains(mischief, memory);

    EXPECT_LE(after.resources.handles, before.resources.handles);
    EXPECT_LE(after.resources.gdiObjects, before.resources.gdiObjects);
    EXPECT_LE(after.resources.windows, before.resources.windows);
    EXPECT_LE(after.resources.menus, before.resources.menus);
    EXPECT_LE(after.blocks, before.blocks);
    if (steps >= standardSteps)
    {
        expectEverythingCame(mischief);
    }
    for (const std::wstring& entry : mischief.windows().eventLog())
    {
        // The plug-in logs what it did not expect. Windows without memory for a dialog is one such thing.
        EXPECT_NE(std::wstring::npos, entry.find(L"cannot be shown")) << Acceptance::narrow(entry);
    }
}

} // namespace
} // namespace Hostile
