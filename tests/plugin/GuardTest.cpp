#include "DialogTestBase.h"

#include "brimlow/system/Exception.h"
#include "tmgmt/snapin/guard.h"

#include <new>
#include <stdexcept>

namespace
{

using TMgmt::ComError;
using TMgmt::guard;

class GuardTest : public DialogTestBase
{
};

TEST_F(GuardTest, givesTheResultOfItsBody)
{
    EXPECT_EQ(guard([] { return S_FALSE; }), S_FALSE);
}

TEST_F(GuardTest, showsAFailureOfTheLibrariesAndAnswersEFail)
{
    robot().message({.text = L"The file is gone.",
                     .caption = L"KV Tessaro 2010",
                     .icon = MB_ICONERROR,
                     .owner = Acceptance::Owner::none,
                     .buttons = {IDOK},
                     .answer = IDOK});
    EXPECT_EQ(guard([]() -> HRESULT { throw Core::Exception(L"The file is gone."); }), E_FAIL);
}

TEST_F(GuardTest, turnsEveryOtherExceptionIntoAnHresultWithoutAMessage)
{
    EXPECT_EQ(guard([]() -> HRESULT { throw ComError(DV_E_CLIPFORMAT); }), DV_E_CLIPFORMAT);
    EXPECT_EQ(guard([]() -> HRESULT { throw std::bad_alloc(); }), E_OUTOFMEMORY);
    EXPECT_EQ(guard([]() -> HRESULT { throw std::runtime_error("anything"); }), E_UNEXPECTED);
    EXPECT_EQ(guard([]() -> HRESULT { throw 42; }), E_UNEXPECTED);
}

} // namespace
