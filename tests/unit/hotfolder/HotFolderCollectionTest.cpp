#include "brimlow/hotfolder/HotFolderCollection.h"
#include "CommonAppData.h"
#include "PrintTo.h"
#include "brimlow/system/Exception.h"
#include "refusal.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

using namespace HotFolders;

HotFolder watching(const Core::String& path, const wchar_t* pattern = L"*.*")
{
    HotFolder folder;
    folder.setFolder(path);
    folder.setOutputFolder(L"C:\\Out");
    folder.setFileMatchPattern(pattern);
    return folder;
}

// The input folders, in the order of the collection.
std::vector<std::string> paths(const HotFolderCollection& folders)
{
    std::vector<std::string> paths;
    for (int index = 0; index < folders.getCount(); ++index)
    {
        paths.push_back(folders.getAt(index).getFolder().toUtf8());
    }
    return paths;
}

using Paths = std::vector<std::string>;

class HotFolderCollectionTest : public testing::Test
{
  protected:
    CommonAppData m_data;
};

TEST_F(HotFolderCollectionTest, IsEmptyWithoutADatabase)
{
    const HotFolderCollection folders;
    EXPECT_EQ(0, folders.getCount());
    EXPECT_THROW(folders.getAt(0), Core::UnreacheableCodeException);
    EXPECT_THROW(folders.getAt(-1), Core::UnreacheableCodeException);
}

TEST_F(HotFolderCollectionTest, KeepsEveryField)
{
    HotFolder folder = watching(L"C:\\In", L"*.xml");
    folder.setEnableMonitoring(false);
    folder.setOutputFormat(static_cast<Tessaro::OutputFormat>(8));
    folder.setPageIndex(3);
    folder.setFolderXslTemplate(L"C:\\style.xsl");
    folder.setBaseUrl(L"http://base/");
    ActionList onSuccess(2);
    onSuccess[0].setType(ActionType::CallWebService);
    onSuccess[0].setHttpUrl(L"http://host/{InputFile}");
    onSuccess[1].setType(ActionType::MoveInputFile);
    onSuccess[1].setDestinationPath(L"C:\\Done");
    folder.setOnSuccessActionList(onSuccess);
    ActionList onFailure(1);
    onFailure[0].setType(static_cast<ActionType>(9));
    folder.setOnFailureActionList(onFailure);
    HotFolderCollection().addNewFolder(folder);
    HotFolderCollection().addNewFolder(watching(L"C:\\In2"));

    const HotFolderCollection folders;
    ASSERT_EQ(2, folders.getCount());
    const HotFolder& stored = folders.getAt(0);
    EXPECT_EQ(L"C:\\In", stored.getFolder());
    EXPECT_EQ(L"*.xml", stored.getFileMatchPattern());
    EXPECT_FALSE(stored.isMonitoringEnabled());
    EXPECT_EQ(L"C:\\Out", stored.getOutputFolder());
    EXPECT_EQ(8, static_cast<int>(stored.getOutputFormat()));
    EXPECT_EQ(3, stored.getPageIndex());
    EXPECT_FALSE(stored.applyFolderXslTemplate());
    EXPECT_EQ(L"C:\\style.xsl", stored.getFolderXslTemplate());
    EXPECT_EQ(L"http://base/", stored.getBaseUrl());
    EXPECT_EQ(onSuccess, stored.getOnSuccessActionList());
    EXPECT_EQ(onFailure, stored.getOnFailureActionList());
    EXPECT_TRUE(folders.getAt(1).isMonitoringEnabled());
    EXPECT_TRUE(folders.getAt(1).getOnSuccessActionList().empty());
}

TEST_F(HotFolderCollectionTest, IsInTheOrderOfAddingWhateverIsChanged)
{
    HotFolderCollection folders;
    for (const wchar_t* path : {L"C:\\b", L"C:\\c", L"C:\\a"})
    {
        folders.addNewFolder(watching(path));
    }
    HotFolder middle = folders.getAt(1);
    middle.setFolder(L"C:\\z");
    folders.updateFolder(middle);
    EXPECT_EQ((Paths{"C:\\b", "C:\\z", "C:\\a"}), paths(folders));
    folders.removeFolder(folders.getAt(2));
    folders.addNewFolder(watching(L"C:\\d"));
    EXPECT_EQ((Paths{"C:\\b", "C:\\z", "C:\\d"}), paths(folders));
    EXPECT_EQ((Paths{"C:\\b", "C:\\z", "C:\\d"}), paths(HotFolderCollection()));
}

TEST_F(HotFolderCollectionTest, StaysAsItWasConstructedWhenAnotherChanges)
{
    HotFolderCollection().addNewFolder(watching(L"C:\\a"));
    const HotFolderCollection before;
    const HotFolderCollection copy = before;
    HotFolderCollection().addNewFolder(watching(L"C:\\b"));
    HotFolderCollection().removeFolder(before.getAt(0));
    EXPECT_EQ((Paths{"C:\\a"}), paths(before));
    EXPECT_EQ((Paths{"C:\\a"}), paths(copy));
    EXPECT_EQ((Paths{"C:\\b"}), paths(HotFolderCollection()));
}

TEST_F(HotFolderCollectionTest, UpdatesTheSameHotFolderAgainAndAgain)
{
    HotFolderCollection().addNewFolder(watching(L"C:\\a"));
    HotFolder folder = HotFolderCollection().getAt(0);
    for (const wchar_t* path : {L"C:\\b", L"C:\\c"})
    {
        folder.setFolder(path);
        HotFolderCollection().updateFolder(folder);
    }
    EXPECT_EQ((Paths{"C:\\c"}), paths(HotFolderCollection()));
}

TEST_F(HotFolderCollectionTest, ReplacesTheActionsOfAnUpdatedHotFolder)
{
    HotFolder folder = watching(L"C:\\a");
    folder.setOnSuccessActionList(ActionList(3));
    folder.setOnFailureActionList(ActionList(1));
    HotFolderCollection().addNewFolder(folder);
    folder = HotFolderCollection().getAt(0);
    folder.setOnSuccessActionList(ActionList(1));
    folder.setOnFailureActionList({});
    HotFolderCollection().updateFolder(folder);
    EXPECT_EQ(1u, HotFolderCollection().getAt(0).getOnSuccessActionList().size());
    EXPECT_EQ(0u, HotFolderCollection().getAt(0).getOnFailureActionList().size());
}

TEST_F(HotFolderCollectionTest, GivesAnAddedCopyAnIdentityOfItsOwn)
{
    HotFolderCollection folders;
    folders.addNewFolder(watching(L"C:\\a"));
    HotFolder copy = folders.getAt(0);
    copy.setFolder(L"C:\\b");
    folders.addNewFolder(copy);
    folders.removeFolder(copy);
    EXPECT_EQ((Paths{"C:\\b"}), paths(HotFolderCollection()));
}

TEST_F(HotFolderCollectionTest, RefusesASecondHotFolderForTheSameFiles)
{
    HotFolderCollection folders;
    folders.addNewFolder(watching(L"C:\\\u00C4rger\\In", L"*.Xml"));
    for (const wchar_t* same : {L"C:\\\u00C4rger\\In", L"c:\\\u00E4RGER\\in\\", L"C:/\u00C4rger/In//"})
    {
        EXPECT_EQ(L"Another hot folder already watches \"C:\\\u00C4rger\\In\" for \"*.Xml\".",
                  refusal([&] { folders.addNewFolder(watching(same, L"*.xML")); }));
    }
    EXPECT_EQ(L"Another hot folder already watches \"C:\\\u00C4rger\\In\" for \"*.Xml\".",
              refusal([&] { folders.addNewFolder(folders.getAt(0)); }));
    EXPECT_EQ(1, folders.getCount());
    EXPECT_EQ(L"accepted", refusal([&] { folders.addNewFolder(watching(L"C:\\\u00C4rger\\In", L"*.txt")); }));
    EXPECT_EQ(L"accepted", refusal([&] { folders.addNewFolder(watching(L"C:\\\u00C4rger\\In2", L"*.Xml")); }));
}

TEST_F(HotFolderCollectionTest, RefusesAnUpdateToTheFilesOfAnother)
{
    HotFolderCollection folders;
    folders.addNewFolder(watching(L"C:\\a"));
    folders.addNewFolder(watching(L"C:\\b"));
    HotFolder second = folders.getAt(1);
    second.setFolder(L"C:\\A");
    EXPECT_EQ(L"Another hot folder already watches \"C:\\a\" for \"*.*\".",
              refusal([&] { folders.updateFolder(second); }));
    EXPECT_EQ((Paths{"C:\\a", "C:\\b"}), paths(folders));
    EXPECT_EQ((Paths{"C:\\a", "C:\\b"}), paths(HotFolderCollection()));
    second.setFolder(L"C:\\B\\");
    EXPECT_EQ(L"accepted", refusal([&] { folders.updateFolder(second); }));
}

TEST_F(HotFolderCollectionTest, RefusesWhatIsNotValidButDoesNotLookForFolders)
{
    HotFolderCollection folders;
    EXPECT_EQ(L"Please enter the input folder.", refusal([&] { folders.addNewFolder(HotFolder()); }));
    EXPECT_EQ(0, folders.getCount());
    folders.addNewFolder(watching(L"C:\\does\\not\\exist"));
    HotFolder stored = folders.getAt(0);
    stored.setPageIndex(-1);
    EXPECT_EQ(L"The page index -1 is negative; the first page has index 0.",
              refusal([&] { folders.updateFolder(stored); }));
    EXPECT_EQ(0, HotFolderCollection().getAt(0).getPageIndex());
}

TEST_F(HotFolderCollectionTest, RefusesToUpdateWhatHasBeenRemoved)
{
    HotFolderCollection().addNewFolder(watching(L"C:\\a"));
    const HotFolder removed = HotFolderCollection().getAt(0);
    HotFolderCollection().removeFolder(removed);
    const Core::String gone = L"The hot folder \"C:\\a\" has been removed by another program. Please refresh the list.";
    EXPECT_EQ(gone, refusal([&] { HotFolderCollection().updateFolder(removed); }));
    EXPECT_EQ(gone, refusal([&] { HotFolderCollection().updateFolder(watching(L"C:\\a")); }));

    // Its row number goes to the next one; that is another hot folder all the same.
    HotFolderCollection().addNewFolder(watching(L"C:\\b"));
    EXPECT_EQ(gone, refusal([&] { HotFolderCollection().updateFolder(removed); }));
    EXPECT_EQ((Paths{"C:\\b"}), paths(HotFolderCollection()));
}

TEST_F(HotFolderCollectionTest, RemovingWhatIsGoneIsHarmless)
{
    HotFolderCollection().addNewFolder(watching(L"C:\\a"));
    const HotFolder removed = HotFolderCollection().getAt(0);
    HotFolderCollection().removeFolder(removed);
    HotFolderCollection().addNewFolder(watching(L"C:\\b"));
    HotFolderCollection().removeFolder(removed);
    HotFolderCollection().removeFolder(watching(L"C:\\b"));
    EXPECT_EQ((Paths{"C:\\b"}), paths(HotFolderCollection()));
}

TEST_F(HotFolderCollectionTest, RemovesByIdentityWhateverTheValuesAre)
{
    HotFolderCollection folders;
    folders.addNewFolder(watching(L"C:\\a"));
    folders.addNewFolder(watching(L"C:\\b"));
    HotFolder first = folders.getAt(0);
    first.setFolder(L"C:\\b");
    folders.removeFolder(first);
    EXPECT_EQ((Paths{"C:\\b"}), paths(folders));
}

TEST_F(HotFolderCollectionTest, KeepsTextsOfAnyScriptAndLength)
{
    const Core::String texts[] = {
        L"C:\\\u65E5\u672C\u8A9E\\\u0627\u0644\u0639\u0631\u0628\u064A\u0629\\\U0001F600",
        Core::String(u"C:\\lone \xD800 and \xDC00"),
        L"C:\\" + Core::String(std::wstring(32'000, L'x')),
        L"C:\\quote'\"; DROP TABLE hot_folder; --",
    };
    for (const Core::String& text : texts)
    {
        HotFolder folder = watching(text);
        folder.setBaseUrl(L"\uFEFF" + text);
        HotFolderCollection().addNewFolder(folder);
        const HotFolderCollection folders;
        EXPECT_EQ(text, folders.getAt(folders.getCount() - 1).getFolder());
        EXPECT_EQ(L"\uFEFF" + text, folders.getAt(folders.getCount() - 1).getBaseUrl());
    }
}

} // namespace
