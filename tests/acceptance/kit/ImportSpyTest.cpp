#include "kit/ImportSpy.h"
#include "kit/ConsoleTest.h"

#include <set>

namespace Acceptance
{
namespace
{

// A function that the plug-in certainly calls: for the pictures of its nodes, resources 203 and 204, whenever the
// console asks for them because a node is selected.
class ImportSpyTest : public ConsoleTest
{
  protected:
    using BitmapSpy = ImportSpy<"LoadBitmapW", decltype(LoadBitmapW)>;

    void SetUp() override
    {
        ConsoleTest::SetUp();
        open();
    }

    HRESULT selectANode()
    {
        recorder.forgetCalls();
        view().select(view().selected().empty() ? L"Log" : L"");
        return recorder.calls(L"IComponent::Notify", L"event=MMCN_ADD_IMAGES").at(0).result;
    }
};

TEST_F(ImportSpyTest, seesTheArgumentsAndCallsThrough)
{
    std::set<LPCWSTR> names;
    BitmapSpy spy(
        [&](HINSTANCE module, LPCWSTR name)
        {
            EXPECT_EQ(GetModuleHandleW(L"TMgmt.dll"), module);
            names.insert(name);
            return spy.callThrough(module, name);
        });
    EXPECT_EQ(S_OK, selectANode());
    EXPECT_TRUE(names.contains(MAKEINTRESOURCEW(203)));
    EXPECT_TRUE(names.contains(MAKEINTRESOURCEW(204)));
}

TEST_F(ImportSpyTest, answersInPlaceOfTheFunction)
{
    BitmapSpy spy([](HINSTANCE, LPCWSTR) -> HBITMAP { return nullptr; });
    EXPECT_EQ(E_FAIL, selectANode());
}

TEST_F(ImportSpyTest, countsCallsAndLetsThemThrough)
{
    BitmapSpy spy;
    EXPECT_EQ(0, spy.calls());
    EXPECT_EQ(S_OK, selectANode());
    const int calls = spy.calls();
    EXPECT_GE(calls, 2);
    LoadBitmapW(nullptr, MAKEINTRESOURCEW(203));
    EXPECT_EQ(calls, spy.calls()) << "a call of this program, not of the library";
}

TEST_F(ImportSpyTest, seesNothingOnceItIsGone)
{
    int calls = 0;
    const auto count = [&](HINSTANCE, LPCWSTR) -> HBITMAP
    {
        ++calls;
        return nullptr;
    };
    {
        BitmapSpy spy(count);
    }
    EXPECT_EQ(S_OK, selectANode());
    EXPECT_EQ(0, calls);
}

TEST_F(ImportSpyTest, refusesASecondSpyAndKeepsTheFirst)
{
    BitmapSpy first;
    EXPECT_THROW(BitmapSpy(), std::logic_error);
    EXPECT_EQ(S_OK, selectANode());
    EXPECT_GE(first.calls(), 2);
}

TEST_F(ImportSpyTest, refusesAFunctionThatTheLibraryDoesNotImport)
{
    using Unknown = ImportSpy<"NoSuchFunction", void()>;
    EXPECT_THROW(Unknown(), std::runtime_error);
}

} // namespace
} // namespace Acceptance
