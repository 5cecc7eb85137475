#include "frame/BareSnapIn.h"
#include "kit/DatabaseLock.h"
#include "templates/TemplatesTest.h"

#include <gmock/gmock.h>

namespace Acceptance
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

constexpr wchar_t gone[] = L"The folder is no longer there. Please refresh the list.";

class ResourceFolderList : public TemplatesTest
{
  protected:
    void SetUp() override
    {
        TemplatesTest::SetUp();
        addApplication(L"Invoices");
    }

    // One file in each, named after it.
    static void addFolders(const Texts& folders, const std::wstring& application = L"Invoices")
    {
        for (const auto& folder : folders)
        {
            addFolder(application, folder);
            addFile(application, folder, folder + L".txt");
        }
    }

    static void removeFolder(const std::wstring& folder)
    {
        stored(L"Invoices").deleteResource(serverTemplates(L"Invoices\\" + folder).wstring());
    }
};

TEST_F(ResourceFolderList, comesBehindUsersInTheOrderOfTheLibrary)
{
    addFolders({L"Texts", L"Images", L"\u00C9t\u00E9 \u8ACB\u6C42"});
    open();
    EXPECT_THAT(view().children(nodeOf(L"Invoices")),
                ElementsAre(L"Users", L"Texts", L"Images", L"\u00C9t\u00E9 \u8ACB\u6C42"));
    EXPECT_THAT(view().children(nodeOf(L"Invoices\\Texts")), IsEmpty());
}

TEST_F(ResourceFolderList, hasOneColumnAndDoesNotSort)
{
    addFolders({L"Images"});
    openAt(nodeOf(L"Invoices\\Images"));
    EXPECT_THAT(view().columns(), ElementsAre(ConsoleView::Column{L"Name", 150}));
    EXPECT_FALSE(view().view().sortable());
}

TEST_F(ResourceFolderList, switchesSortingOffBeforeItInsertsItsColumn)
{
    addFolders({L"Images"});
    open();
    recorder.forgetCalls();
    view().select(nodeOf(L"Invoices\\Images"));
    const auto styles = recorder.calls(L"IResultData::ModifyViewStyle", L"add=4, remove=0");
    const auto columns = recorder.calls(L"IHeaderCtrl::InsertColumn", L"nCol=0");
    ASSERT_EQ(1u, styles.size()) << "MMC_NOSORTHEADER";
    ASSERT_EQ(1u, columns.size());
}

TEST_F(ResourceFolderList, showsTheFilesInTheOrderOfTheLibrary)
{
    addFolder(L"Invoices", L"Images");
    for (const wchar_t* const name : {L"logo.png", L"a.svg", L"\u8ACB\u6C42.txt"})
    {
        addFile(L"Invoices", L"Images", name);
    }
    openAt(nodeOf(L"Invoices\\Images"));
    EXPECT_THAT(view().rows(),
                ElementsAre(ElementsAre(L"logo.png"), ElementsAre(L"a.svg"), ElementsAre(L"\u8ACB\u6C42.txt")));
}

TEST_F(ResourceFolderList, isEmptyForAnEmptyFolder)
{
    addFolder(L"Invoices", L"Images");
    openAt(nodeOf(L"Invoices\\Images"));
    EXPECT_THAT(view().rows(), IsEmpty());
}

TEST_F(ResourceFolderList, hasNothingInFurtherColumnsOfAFile)
{
    addFolders({L"Images"});
    BareSnapIn snapIn;
    const auto bare = snapIn.makeView();
    const SCOPEDATAITEM folder = snapIn.node(nodeOf(L"Invoices\\Images"));
    ASSERT_EQ(S_OK, bare->component->Notify(snapIn.object(folder.lParam).Get(), MMCN_SHOW, TRUE, folder.ID));
    ASSERT_EQ(1u, bare->console.results.inserted.size());
    const MMC_COOKIE file = bare->console.results.inserted.front().lParam;
    EXPECT_EQ(L"Images.txt", bare->cell(file, 0));
    EXPECT_EQ(L"", bare->cell(file, 1));
    EXPECT_EQ(L"", bare->cell(file, 7));
}

TEST_F(ResourceFolderList, letsFoldersAndFilesBeDeletedAndNothingElse)
{
    addFolders({L"Images"});
    openAt(nodeOf(L"Invoices\\Images"));
    constexpr MMC_CONSOLE_VERB verbs[] = {MMC_VERB_COPY,    MMC_VERB_PASTE, MMC_VERB_DELETE, MMC_VERB_RENAME,
                                          MMC_VERB_REFRESH, MMC_VERB_PRINT, MMC_VERB_CUT,    MMC_VERB_PROPERTIES};
    for (const MMC_CONSOLE_VERB verb : verbs)
    {
        EXPECT_EQ(verb == MMC_VERB_DELETE, view().view().verb(verb).enabled) << verb;
    }
    view().view().selectRows({0});
    for (const MMC_CONSOLE_VERB verb : verbs)
    {
        EXPECT_EQ(verb == MMC_VERB_DELETE, view().view().verb(verb).enabled) << verb;
    }
}

TEST_F(ResourceFolderList, isReadAnewWheneverItIsShown)
{
    addFolders({L"Images"});
    openAt(nodeOf(L"Invoices\\Images"));
    addFile(L"Invoices", L"Images", L"logo.png");
    EXPECT_THAT(names(), ElementsAre(L"Images.txt"));
    view().select(L"Users");
    view().select(nodeOf(L"Invoices\\Images"));
    EXPECT_THAT(names(), ElementsAre(L"Images.txt", L"logo.png"));
}

TEST_F(ResourceFolderList, takesTheNameThatTheFolderWasGivenElsewhere)
{
    addFolders({L"Images"});
    open();
    view().select(nodeOf(L"Invoices"));
    {
        Tessaro::ServerApplication invoices = stored(L"Invoices");
        invoices.renameResource(invoices.getResourceFolderAt(0), L"Pictures");
    }
    view().select(nodeOf(L"Invoices\\Images"));
    EXPECT_EQ(nodeOf(L"Invoices\\Pictures"), view().selected());
    EXPECT_THAT(names(), ElementsAre(L"Images.txt"));
}

// Proves: the ids are positions, so that a folder's node shows its neighbour once an application or a folder before
// it was removed.
TEST_F(ResourceFolderList, showsTheNextFolderOnceAnEarlierOneWasRemovedElsewhere)
{
    addFolders({L"Images", L"Texts", L"More"});
    open();
    view().select(nodeOf(L"Invoices"));
    const auto node = view().node(nodeOf(L"Invoices\\Texts"));
    removeFolder(L"Images");
    view().view().selectNode(node);
    EXPECT_THAT(names(), ElementsAre(L"More.txt"));
    EXPECT_EQ(nodeOf(L"Invoices\\More"), view().selected()) << "what the node stands for is what it is called";
}

// Proves: the ids are positions, so that a folder's node shows its neighbour once an application or a folder before
// it was removed.
TEST_F(ResourceFolderList, showsTheNextApplicationsFolderOnceAnEarlierOneWasRemovedElsewhere)
{
    addApplications({L"Letters", L"Orders"});
    addFolders({L"Texts"}, L"Letters");
    addFolders({L"More"}, L"Orders");
    open();
    const auto node = view().node(nodeOf(L"Letters\\Texts"));
    removeApplication(L"Invoices");
    view().view().selectNode(node);
    EXPECT_THAT(names(), ElementsAre(L"More.txt"));
}

TEST_F(ResourceFolderList, reportsAFolderThatWasRemovedElsewhereAndListsNothing)
{
    addFolders({L"Images"});
    open();
    const auto node = view().node(nodeOf(L"Invoices\\Images"));
    removeFolder(L"Images");
    error(gone);
    view().view().selectNode(node);
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_THAT(view().columns(), ElementsAre(ConsoleView::Column{L"Name", 150}));
}

TEST_F(ResourceFolderList, listsWhatTheLibraryListsThoughTheFolderIsGoneFromTheDisk)
{
    addFolders({L"Images"});
    std::filesystem::remove_all(serverTemplates(L"Invoices\\Images"));
    openAt(nodeOf(L"Invoices\\Images"));
    EXPECT_THAT(names(), ElementsAre(L"Images.txt"));
}

TEST_F(ResourceFolderList, reportsADatabaseThatIsInUseAndListsNothing)
{
    addFolders({L"Images"});
    open();
    const auto node = view().node(nodeOf(L"Invoices\\Images"));
    {
        // Nothing says otherwise that it has changed.
        addFile(L"Invoices", L"Images", L"logo.png");
        const DatabaseLock lock(database());
        error(databaseInUse());
        view().view().selectNode(node);
        EXPECT_THAT(names(), IsEmpty());
    }
    view().view().selectNode(node);
    EXPECT_THAT(names(), ElementsAre(L"Images.txt", L"logo.png"));
}

} // namespace
} // namespace Acceptance
