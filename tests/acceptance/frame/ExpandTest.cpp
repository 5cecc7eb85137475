#include "frame/BareSnapIn.h"
#include "frame/nodeData.h"
#include "kit/ConsoleTest.h"

namespace Acceptance
{
namespace
{

using Names = std::vector<std::wstring>;
using Deletion = NameSpaceDouble::Deletion;

const Names rootChildren{L"About KV Tessaro", L"Hot Folders", L"Server Templates", L"Users", L"Server Certificates",
                         L"Engine Settings",  L"Log"};
const Names settingsChildren{L"Listener Configuration", L"AFP Encoder", L"Private Fonts"};

class Expanding : public ConsoleTest
{
  protected:
    static Names childrenIn(const BareSnapIn& snapIn, HSCOPEITEM parent)
    {
        Names names;
        for (const SCOPEDATAITEM& child : snapIn.console.nameSpace.children)
        {
            if (child.relativeID == parent)
            {
                names.push_back(snapIn.displayName(child.lParam));
            }
        }
        return names;
    }
};

// Proves: "About KV Tessaro" comes before the branches that work is done in.
TEST_F(Expanding, theRootInsertsItsSevenChildrenInOrder)
{
    BareSnapIn snapIn;
    EXPECT_EQ(S_OK, snapIn.expand(0, BareSnapIn::rootHandle));
    EXPECT_EQ(rootChildren, childrenIn(snapIn, BareSnapIn::rootHandle));
    EXPECT_TRUE(snapIn.console.nameSpace.deletions.empty());
}

TEST_F(Expanding, theRootTwiceShowsItsChildrenOnce)
{
    BareSnapIn snapIn;
    snapIn.expand(0, BareSnapIn::rootHandle);
    const auto first = snapIn.console.nameSpace.children;
    EXPECT_EQ(S_OK, snapIn.expand(0, BareSnapIn::rootHandle));
    EXPECT_EQ(rootChildren, childrenIn(snapIn, BareSnapIn::rootHandle));
    EXPECT_EQ((std::vector<Deletion>{{BareSnapIn::rootHandle, false}}), snapIn.console.nameSpace.deletions);
    for (std::size_t i = 0; i < first.size(); ++i)
    {
        EXPECT_EQ(first[i].lParam, snapIn.console.nameSpace.children[i].lParam) << "another node in place of the same";
    }
}

TEST_F(Expanding, collapsingTheRootRemovesItsChildrenAndInsertsNone)
{
    BareSnapIn snapIn;
    snapIn.expand(0, BareSnapIn::rootHandle);
    snapIn.console.nameSpace.inserted.clear();
    EXPECT_EQ(S_OK, snapIn.expand(0, BareSnapIn::rootHandle, false));
    EXPECT_TRUE(snapIn.console.nameSpace.children.empty());
    EXPECT_TRUE(snapIn.console.nameSpace.inserted.empty());
}

TEST_F(Expanding, collapsingWhatWasNeverExpandedTouchesNothing)
{
    BareSnapIn snapIn;
    EXPECT_EQ(S_OK, snapIn.expand(0, BareSnapIn::rootHandle, false));
    EXPECT_TRUE(snapIn.console.nameSpace.deletions.empty());
    EXPECT_TRUE(snapIn.console.nameSpace.inserted.empty());
}

// Proves: "Engine Settings" declares two children and inserts three.
TEST_F(Expanding, engineSettingsDeclaresTwoChildrenAndInsertsThree)
{
    BareSnapIn snapIn;
    const SCOPEDATAITEM settings = snapIn.node(L"Engine Settings");
    EXPECT_EQ(2, settings.cChildren);
    EXPECT_EQ(S_OK, snapIn.expand(settings.lParam, settings.ID));
    EXPECT_EQ(settingsChildren, childrenIn(snapIn, settings.ID));
    EXPECT_EQ(S_OK, snapIn.expand(settings.lParam, settings.ID));
    EXPECT_EQ(settingsChildren, childrenIn(snapIn, settings.ID));
    EXPECT_EQ(S_OK, snapIn.expand(settings.lParam, settings.ID, false));
    EXPECT_EQ(Names(), childrenIn(snapIn, settings.ID));
}

TEST_F(Expanding, logInsertsLogFiles)
{
    BareSnapIn snapIn;
    const SCOPEDATAITEM log = snapIn.node(L"Log");
    EXPECT_EQ(S_OK, snapIn.expand(log.lParam, log.ID));
    EXPECT_EQ(Names{L"Log Files"}, childrenIn(snapIn, log.ID));
}

TEST_F(Expanding, aNodeWithoutChildrenDoesNotHandleIt)
{
    BareSnapIn snapIn;
    for (const wchar_t* const path : {L"About KV Tessaro", L"Engine Settings\\AFP Encoder"})
    {
        const SCOPEDATAITEM node = snapIn.node(path);
        EXPECT_EQ(E_NOTIMPL, snapIn.expand(node.lParam, node.ID));
    }
}

TEST_F(Expanding, anInsertionThatTheConsoleRefusesEndsItWithTheRefusal)
{
    BareSnapIn snapIn;
    snapIn.console.nameSpace.insertAnswer = E_OUTOFMEMORY;
    EXPECT_EQ(E_OUTOFMEMORY, snapIn.expand(0, BareSnapIn::rootHandle));
    EXPECT_EQ(1u, snapIn.console.nameSpace.inserted.size());
}

TEST_F(Expanding, aWindowShowsTheTree)
{
    open();
    EXPECT_EQ(rootChildren, view().children(L""));
    EXPECT_EQ(settingsChildren, view().children(L"Engine Settings"));
    EXPECT_EQ(Names{L"Log Files"}, view().children(L"Log"));
}

TEST_F(Expanding, onlyNodesWithChildrenHaveAnExpandMark)
{
    open();
    view().children(L"");
    for (const std::wstring& name : rootChildren)
    {
        EXPECT_EQ(name == L"Engine Settings" || name == L"Log", host().tree().hasExpandMark(view().node(name)));
    }
}

TEST_F(Expanding, theRootListsItsChildrenAsRows)
{
    open();
    view().select(L"");
    // The console draws a list without columns by the names alone.
    Names rows;
    for (int row = 0; row < view().view().rowCount(); ++row)
    {
        rows.push_back(view().view().rowText(row, 0));
    }
    EXPECT_EQ(rootChildren, rows);
    EXPECT_FALSE(view().view().sortable());
}

} // namespace
} // namespace Acceptance
