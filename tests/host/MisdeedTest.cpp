#include "HostTest.h"

using namespace Console;
using Foreign::Misdeed;

namespace
{

class MisdeedTest : public HostTest
{
  protected:
    void SetUp() override
    {
        HostTest::SetUp();
        complaintsExpected = true;
    }
};

} // namespace

TEST_F(MisdeedTest, aFailedShowIsStillLeft)
{
    settings.misdeed = Misdeed::failShow;
    view->selectNode(root());
    EXPECT_EQ(view->pane(), View::Pane::list);
    recorder.clear();
    view->selectNode(NodeId::none);
    EXPECT_EQ(recorder.sequence().back(), L"view SHOW 0");
    EXPECT_TRUE(recorder.complaints.empty());
}

TEST_F(MisdeedTest, aSnapInWithoutAComponentShowsAMessage)
{
    settings.misdeed = Misdeed::failCreateComponent;
    view->selectNode(root());
    EXPECT_EQ(view->pane(), View::Pane::message);
    EXPECT_NE(view->message().find(L"offers no view"), std::wstring::npos);
}

TEST_F(MisdeedTest, anExceptionIsAFailedCall)
{
    settings.misdeed = Misdeed::throwInShow;
    view->selectNode(root());
    EXPECT_TRUE(complainedAbout(L"A C++ exception came out of IComponent::Notify"));
    EXPECT_EQ(snapIn->state(), SnapIn::State::ready);
    settings.misdeed = Misdeed::none;
    view->selectNode(child(0));
    EXPECT_EQ(view->rowCount(), 5);
}

TEST_F(MisdeedTest, anExceptionInATextIsAnEmptyText)
{
    view->selectNode(root());
    settings.misdeed = Misdeed::throwInText;
    EXPECT_EQ(view->rowText(4, 0), L"");
    settings.misdeed = Misdeed::none;
    EXPECT_EQ(view->rowText(4, 0), L"Row 1");
}

TEST_F(MisdeedTest, aCrashTakesTheSnapInOutOfUseAndNothingElse)
{
    leaksExpected = true; // nothing is called in it any more, not even Release
    settings.misdeed = Misdeed::crashInShow;
    view->selectNode(root());
    EXPECT_EQ(snapIn->state(), SnapIn::State::dead);
    EXPECT_EQ(view->pane(), View::Pane::message);
    EXPECT_NE(view->message().find(L"crashed in IComponent::Notify (fault 0xC0000005"), std::wstring::npos);
    EXPECT_TRUE(tree().children(root()).empty());
    EXPECT_FALSE(tree().expand(root()));
    EXPECT_EQ(tree().text(root()), L"Foreign root");
    settings.misdeed = Misdeed::none;
    recorder.clear();
    view->selectNode(root());
    EXPECT_TRUE(recorder.sequence().empty());
    EXPECT_EQ(view->pane(), View::Pane::message);
    // Another instance of the same library works on.
    SnapIn& second = host->addSnapIn(Foreign::snapInClass);
    view->selectNode(second.root());
    EXPECT_EQ(view->rowCount(), 8);
}

TEST_F(MisdeedTest, aCrashWhileExpandingIsContained)
{
    leaksExpected = true;
    settings.misdeed = Misdeed::crashInExpand;
    EXPECT_FALSE(tree().expand(root()));
    EXPECT_EQ(snapIn->state(), SnapIn::State::dead);
    EXPECT_GT(listener.snapIns, 0);
}

TEST_F(MisdeedTest, aTextFromNowhereIsContained)
{
    leaksExpected = true;
    view->selectNode(root());
    settings.misdeed = Misdeed::garbageText;
    EXPECT_EQ(view->rowText(4, 0), L"");
    EXPECT_EQ(snapIn->state(), SnapIn::State::dead);
}

TEST_F(MisdeedTest, garbageForHandlesIsRefused)
{
    settings.misdeed = Misdeed::badHandles;
    view->selectNode(root());
    EXPECT_EQ(settings.consoleResults, 4 * 5 + 3 * 2) << "every one of the bad calls";
    EXPECT_EQ(tree().children(root()).size(), 3u);
    EXPECT_EQ(view->rowCount(), 8);
    EXPECT_TRUE(complainedAbout(L"none of the snap-in's tree items"));
    EXPECT_TRUE(complainedAbout(L"none of the view's rows"));
}

TEST_F(MisdeedTest, textsInTreeItemsAreShownOrRefused)
{
    settings.misdeed = Misdeed::textInInsert;
    tree().expand(root());
    ASSERT_EQ(tree().children(root()).size(), 3u);
    EXPECT_EQ(tree().text(child(0)), L"own text");
    EXPECT_TRUE(complainedAbout(L"a text in place of the text callback"));
    start(Strictness::strict);
    tree().expand(root());
    EXPECT_TRUE(tree().children(root()).empty());
    EXPECT_EQ(settings.consoleResults, 3);
}

TEST_F(MisdeedTest, columnsAfterRowsAreRefused)
{
    settings.misdeed = Misdeed::columnsAfterRows;
    view->selectNode(root());
    EXPECT_EQ(settings.consoleResult, E_FAIL);
    EXPECT_EQ(view->columns().size(), 3u);
}

TEST_F(MisdeedTest, interfacesOnTheWrongSideAreGivenWithAComplaintOrRefused)
{
    settings.misdeed = Misdeed::wrongSide;
    snapIn->load();
    EXPECT_EQ(settings.consoleResult, S_OK);
    EXPECT_TRUE(complainedAbout(L"IResultData was asked for on the component data's console"));
    start(Strictness::strict);
    snapIn->load();
    EXPECT_EQ(settings.consoleResult, E_NOINTERFACE);
}

TEST_F(MisdeedTest, badMenuItemsAreRefusedOneByOne)
{
    settings.misdeed = Misdeed::badMenuItems;
    view->selectNode(root());
    const ContextMenu menu = view->nodeMenu(root());
    EXPECT_EQ(settings.consoleResults, 6);
    EXPECT_EQ(settings.consoleResult, E_POINTER);
    EXPECT_EQ(menu.items().front().text, L"&Add...");
}

TEST_F(MisdeedTest, aLeakedConsoleIsComplainedAboutAndAnswersThatItIsGone)
{
    settings.misdeed = Misdeed::callAfterDestroy;
    view->selectNode(root());
    view.reset();
    host->removeSnapIn(*snapIn);
    EXPECT_TRUE(complainedAbout(L"still holds the component data's console (1 references)"));
    settings.lateCall();
    EXPECT_EQ(settings.consoleResult, RPC_E_DISCONNECTED);
    EXPECT_TRUE(complainedAbout(L"IConsole::GetMainWindow was called after"));
}

TEST_F(MisdeedTest, aLeakedConsoleMayOutliveTheHost)
{
    settings.misdeed = Misdeed::leakConsole;
    view->selectNode(root());
    stop();
    settings.lateCall();
    EXPECT_EQ(settings.consoleResult, RPC_E_DISCONNECTED);
}

TEST_F(MisdeedTest, theImageListOfAddImagesSurvivesItsRelease)
{
    settings.misdeed = Misdeed::releaseImageList;
    view->selectNode(root());
    EXPECT_TRUE(complainedAbout(L"The image list of MMCN_ADD_IMAGES was released"));
    view->selectNode(child(0));
    EXPECT_EQ(view->rowCount(), 5);
}

TEST_F(MisdeedTest, callsFromOtherThreadsAreRefused)
{
    IPropertySheetProvider* provider = nullptr;
    ASSERT_EQ(CoCreateInstance(CLSID_NodeManager, nullptr, CLSCTX_INPROC_SERVER, __uuidof(IPropertySheetProvider),
                               reinterpret_cast<void**>(&provider)),
              S_OK);
    const HANDLE thread = CreateThread(
        nullptr, 0,
        [](void* argument) -> DWORD
        { return static_cast<DWORD>(static_cast<IPropertySheetProvider*>(argument)->AddExtensionPages()); },
        provider, 0, nullptr);
    WaitForSingleObject(thread, INFINITE);
    DWORD result = 0;
    GetExitCodeThread(thread, &result);
    CloseHandle(thread);
    EXPECT_EQ(static_cast<HRESULT>(result), RPC_E_WRONG_THREAD);
    provider->Release();
}
