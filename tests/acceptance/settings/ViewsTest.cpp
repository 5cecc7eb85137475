#include "settings/SettingsTest.h"

namespace Acceptance
{
namespace
{

// What an edit tells the console, and what its views show then.
class SettingsInTwoViews : public SettingsTest
{
  protected:
    void SetUp() override
    {
        SettingsTest::SetUp();
        Registry::preferRestart(false);
    }
};

// Proves: PropertyItem on a change that another view reports.
TEST_F(SettingsInTwoViews, bothDrawTheEditedRowAgain)
{
    openAt(listener, 2);
    view(0).takeRedrawnRows();
    view(1).takeRedrawnRows();
    recorder.forgetCalls();
    typeAndConfirm(L"2099");
    view(0).doubleClick(L"Port");
    EXPECT_EQ(1u, recorder.calls(L"IConsole::UpdateAllViews").size());
    const int port = view(0).indexOf(L"Port");
    EXPECT_EQ(std::set<int>{port}, view(0).takeRedrawnRows());
    EXPECT_EQ(std::set<int>{port}, view(1).takeRedrawnRows());
    EXPECT_EQ(L"2099", view(1).cell(L"Port", L"Value"));
    EXPECT_EQ(L"No", view(1).cell(L"Port", L"Is Default"));
}

TEST_F(SettingsInTwoViews, anotherNodeIsLeftAlone)
{
    openAt(listener, 2);
    view(1).select(encoder);
    const auto before = view(1).rows();
    view(1).takeRedrawnRows();
    typeAndConfirm(L"2099");
    view(0).doubleClick(L"Port");
    EXPECT_TRUE(view(1).takeRedrawnRows().empty());
    EXPECT_EQ(before, view(1).rows());
}

TEST_F(SettingsInTwoViews, aRowCanBeEditedFromEither)
{
    openAt(listener, 2);
    typeAndConfirm(L"2099");
    view(1).doubleClick(L"Port");
    typeAndConfirm(L"3099");
    view(0).runCommand(L"Port", L"&Edit Property");
    EXPECT_EQ(L"3099", view(1).cell(L"Port", L"Value"));
}

} // namespace
} // namespace Acceptance
