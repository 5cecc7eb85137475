#include "tmgmt/templates/rules/access.h"

#include "PrintTo.h"

#include <gmock/gmock.h>

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using TMgmt::namesToOffer;

TEST(NamesToOffer, startWithTheGuestAndKeepTheAccountsOrder)
{
    EXPECT_THAT(namesToOffer({L"zoe", L"adam", L"max"}, {}), ElementsAre(L"Guest", L"zoe", L"adam", L"max"));
    EXPECT_THAT(namesToOffer({}, {}), ElementsAre(L"Guest"));
}

TEST(NamesToOffer, leaveOutWhoIsListed)
{
    EXPECT_THAT(namesToOffer({L"zoe", L"adam", L"max"}, {L"adam"}), ElementsAre(L"Guest", L"zoe", L"max"));
    EXPECT_THAT(namesToOffer({L"zoe", L"adam"}, {L"Guest"}), ElementsAre(L"zoe", L"adam"));
    EXPECT_THAT(namesToOffer({L"zoe"}, {L"zoe", L"Guest"}), IsEmpty());
    EXPECT_THAT(namesToOffer({L"zoe"}, {L"gone"}), ElementsAre(L"Guest", L"zoe"));
}

// Proves: an account whose name differs from a listed one in case only is offered.
TEST(NamesToOffer, areComparedToTheLetter)
{
    EXPECT_THAT(namesToOffer({L"Zoe", L"zoe ", L"zoe"}, {L"zoe", L"GUEST"}), ElementsAre(L"Guest", L"Zoe", L"zoe "));
    // One letter with an accent, and a letter with an accent behind it.
    EXPECT_THAT(namesToOffer({L"\u00E9", L"e\u0301"}, {L"Guest", L"\u00E9"}), ElementsAre(L"e\u0301"));
}

} // namespace
