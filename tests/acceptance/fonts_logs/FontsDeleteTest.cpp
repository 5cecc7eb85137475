#include "fonts_logs/FontsTest.h"
#include "kit/windows.h"

namespace Acceptance
{
namespace
{

class FontsDelete : public FontsTest
{
  protected:
    void SetUp() override
    {
        FontsTest::SetUp();
        Registry::preferRestart(false);
    }
};

// Proves: PrivateFontPropertyItem on Delete.
TEST_F(FontsDelete, takesTheEntryOutWithoutAsking)
{
    store({{L"MapFont:A-BOLD", L"1"}, {L"MapFont:B-ITALIC", L"2"}, {L"MapFont:C-BOLD-ITALIC", L"3"}});
    openNode();
    view().pressDelete(L"B");
    EXPECT_EQ((Entries{{L"MapFont:A-BOLD", L"1"}, {L"MapFont:C-BOLD-ITALIC", L"3"}}), stored());
    const std::vector<Cells> rows{{L"A", L"1", L"Yes", L"No"}, {L"C", L"3", L"Yes", L"Yes"}};
    EXPECT_EQ(rows, view().rows());
    view().pressDelete(L"C");
    view().pressDelete(L"A");
    EXPECT_EQ(Entries{}, stored());
    EXPECT_TRUE(view().rows().empty());
}

TEST_F(FontsDelete, makesTheFileWhereItIsGoneMeanwhile)
{
    store({{L"MapFont:A", L"1"}});
    openNode();
    ServerFiles::reset();
    view().pressDelete(L"A");
    ASSERT_TRUE(fileExists());
    EXPECT_EQ(Entries{}, stored());
    EXPECT_TRUE(view().rows().empty());
}

TEST_F(FontsDelete, keepsWhatOthersWroteMeanwhile)
{
    store({{L"MapFont:A", L"1"}});
    openNode();
    store({{L"MapFont:A", L"changed"}, {L"MapFont:B", L"2"}, {L"MapAlias:X", L"A"}});
    view().pressDelete(L"A");
    EXPECT_EQ((Entries{{L"MapFont:B", L"2"}, {L"MapAlias:X", L"A"}}), stored());
    EXPECT_EQ((std::vector<Cells>{{L"B", L"2", L"No", L"No"}}), view().rows());
}

TEST_F(FontsDelete, enablesTheVerbOnlyWhileARowIsSelected)
{
    store({{L"MapFont:A", L"1"}});
    openNode();
    EXPECT_TRUE(view().canDelete(L"A"));
    for (const MMC_CONSOLE_VERB verb :
         {MMC_VERB_PROPERTIES, MMC_VERB_RENAME, MMC_VERB_COPY, MMC_VERB_PASTE, MMC_VERB_REFRESH})
    {
        EXPECT_FALSE(view().view().verb(verb).enabled) << verb;
    }
    view().view().selectRows({});
    EXPECT_FALSE(view().view().verb(MMC_VERB_DELETE).enabled);
}

TEST_F(FontsDelete, doesNotWriteThePreference)
{
    Registry::reset();
    store({{L"MapFont:A", L"1"}});
    openNode();
    // No service is there to be stopped and started.
    for (int i = 0; i < 2; ++i)
    {
        robot.messageThat([](const MessageBoxSeen& box)
                          { EXPECT_EQ(0u, box.text.find(L"Can't open the service: ")) << narrow(box.text); });
    }
    view().pressDelete(L"A");
    EXPECT_EQ(std::nullopt, Registry::restartPreference());
    EXPECT_EQ(Entries{}, stored()) << "deleted although the restart failed";
}

} // namespace
} // namespace Acceptance
