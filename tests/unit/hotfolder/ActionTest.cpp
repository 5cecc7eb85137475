#include "PrintTo.h"
#include "brimlow/hotfolder/ActionList.h"

#include <gtest/gtest.h>

namespace
{

using namespace HotFolders;

Action action(ActionType type, const wchar_t* path = L"", const wchar_t* url = L"")
{
    Action result;
    result.setType(type);
    result.setDestinationPath(path);
    result.setHttpUrl(url);
    return result;
}

TEST(Action, HasNoTypeAndNoTextsAtFirst)
{
    const Action fresh;
    EXPECT_EQ(0, static_cast<int>(fresh.getType()));
    EXPECT_EQ(L"", fresh.getDestinationPath());
    EXPECT_EQ(L"", fresh.getHttpUrl());
}

TEST(Action, HasTheNumbersThatAreStored)
{
    EXPECT_EQ(1, static_cast<int>(ActionType::DeleteInputFile));
    EXPECT_EQ(2, static_cast<int>(ActionType::MoveInputFile));
    EXPECT_EQ(3, static_cast<int>(ActionType::CallWebService));
}

TEST(Action, DescribesItselfByItsTypeAlone)
{
    const struct
    {
        int type;
        const wchar_t* description;
    } cases[] = {
        {0, L"Delete input file"},  {1, L"Delete input file"}, {2, L"Move input file to C:\\Done"},
        {3, L"Call http://host/x"}, {4, L"Unknown action 4"},  {-1, L"Unknown action -1"},
    };
    for (const auto& [type, description] : cases)
    {
        EXPECT_EQ(description, action(static_cast<ActionType>(type), L"C:\\Done", L"http://host/x").getDescription());
    }
}

TEST(Action, ShowsPlaceholdersOfTheUrlAsTheyAre)
{
    EXPECT_EQ(L"Call http://host/{InputFile}?{0}",
              action(ActionType::CallWebService, L"", L"http://host/{InputFile}?{0}").getDescription());
}

TEST(Action, KeepsTheFieldsOfOtherTypes)
{
    Action moved = action(ActionType::MoveInputFile, L"C:\\Done");
    moved.setType(ActionType::CallWebService);
    moved.setHttpUrl(L"http://host");
    EXPECT_EQ(L"C:\\Done", moved.getDestinationPath());
}

TEST(ActionList, DescribesAnEmptyListAsDoNothing)
{
    EXPECT_EQ(L"Do nothing", ActionList().getDescription());
}

TEST(ActionList, JoinsTheDescriptionsInOrder)
{
    const ActionList one{action(ActionType::MoveInputFile, L"C:\\Done")};
    EXPECT_EQ(L"Move input file to C:\\Done", one.getDescription());

    const ActionList three{action(ActionType::CallWebService, L"", L"https://host"),
                           action(ActionType::MoveInputFile, L"C:\\Done"), action(ActionType::DeleteInputFile)};
    EXPECT_EQ(L"Call https://host; Move input file to C:\\Done; Delete input file", three.getDescription());
}

} // namespace
