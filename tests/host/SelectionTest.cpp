#include "HostTest.h"

#include <algorithm>

using namespace Console;
using Sequence = std::vector<std::wstring>;

namespace
{

class SelectionTest : public HostTest
{
};

} // namespace

TEST_F(SelectionTest, firstSelectionOfTheStaticNode)
{
    view->selectNode(root());
    // 1 as the low word: a node; as the high word (0x10000): selected.
    EXPECT_EQ(recorder.sequence(),
              (Sequence{L"CoCreateInstance", L"Initialize", L"data EXPANDSYNC 0", L"data EXPAND 1", L"CreateComponent",
                        L"Initialize", L"GetResultViewType", L"view ADD_IMAGES", L"view SHOW 1", L"view SELECT 0x10001",
                        L"SetControlbar", L"bars SELECT 0x10001"}));
    EXPECT_EQ(view->pane(), View::Pane::list);
    EXPECT_EQ(listener.selected, std::vector{root()});
}

TEST_F(SelectionTest, fromOneNodeToAnotherAndBack)
{
    view->selectNode(root());
    recorder.clear();
    view->selectNode(child(0));
    const Sequence toChild{L"view SELECT 1",       L"bars SELECT 1",      L"view SHOW 0",     L"data EXPANDSYNC 0",
                           L"data EXPAND 1",       L"GetResultViewType",  L"view ADD_IMAGES", L"view SHOW 1",
                           L"view SELECT 0x10001", L"bars SELECT 0x10001"};
    EXPECT_EQ(recorder.sequence(), toChild);
    recorder.clear();
    view->selectNode(root());
    Sequence back = toChild;
    back.erase(back.begin() + 3, back.begin() + 5); // expanded once in its life
    EXPECT_EQ(recorder.sequence(), back);
}

TEST_F(SelectionTest, selectingTheSelectedNodeRepeatsTheSequence)
{
    view->selectNode(root());
    recorder.clear();
    view->selectNode(root());
    EXPECT_EQ(recorder.sequence(),
              (Sequence{L"view SELECT 1", L"bars SELECT 1", L"view SHOW 0", L"GetResultViewType", L"view ADD_IMAGES",
                        L"view SHOW 1", L"view SELECT 0x10001", L"bars SELECT 0x10001"}));
    EXPECT_EQ(view->columns().size(), 3u);
    EXPECT_EQ(view->rowCount(), 8);
}

TEST_F(SelectionTest, expandIsSentOnceWhoeverAsks)
{
    tree().expand(root());
    tree().expand(root());
    view->selectNode(root());
    EXPECT_EQ(recorder.count(L"IComponentData::CreateComponent"), 1);
    int expansions = 0;
    for (const std::wstring& each : recorder.sequence())
    {
        expansions += each == L"data EXPAND 1" ? 1 : 0;
    }
    EXPECT_EQ(expansions, 1);
    EXPECT_EQ(tree().children(root()).size(), 3u);
}

TEST_F(SelectionTest, aHandledExpandSyncSuppressesExpand)
{
    settings.handleExpandSync = true;
    tree().expand(root());
    EXPECT_EQ(recorder.sequence(), (Sequence{L"CoCreateInstance", L"Initialize", L"data EXPANDSYNC 0"}));
    EXPECT_EQ(tree().children(root()).size(), 3u);
}

TEST_F(SelectionTest, expandMarksAreAsDeclaredUntilTheTruthIsKnown)
{
    tree().expand(root());
    EXPECT_TRUE(tree().hasExpandMark(child(0))) << "declared one child";
    EXPECT_FALSE(tree().hasExpandMark(child(1))) << "declared none";
    tree().expand(child(0));
    EXPECT_FALSE(tree().hasExpandMark(child(0))) << "has none";
}

TEST_F(SelectionTest, answersOfEFamilyAreTakenAsUnhandled)
{
    settings.unhandled = E_NOTIMPL;
    view->selectNode(root());
    view->selectNode(child(1));
    EXPECT_EQ(view->rowCount(), 5);
    EXPECT_EQ(rowTexts().front(), L"Row 0");
}

TEST_F(SelectionTest, childrenOfTheNodeAreRowsBeforeItsOwn)
{
    view->selectNode(root());
    EXPECT_EQ(rowTexts(),
              (Sequence{L"Child 0", L"Child 1", L"Child 2", L"Row 0", L"Row 1", L"Row 2", L"Row 3", L"Row 4"}));
    EXPECT_EQ(view->rowNode(1), child(1));
    EXPECT_EQ(view->rowNode(3), NodeId::none);
}

TEST_F(SelectionTest, childrenAreLeftOutWhereTheSnapInWantsIt)
{
    settings.viewOptions = MMC_VIEW_OPTIONS_EXCLUDE_SCOPE_ITEMS_FROM_LIST;
    view->selectNode(root());
    EXPECT_EQ(view->rowCount(), 5);
}

TEST_F(SelectionTest, secondGenerationComponentsAreAskedTheirOwnWay)
{
    settings.secondGeneration = true;
    settings.viewOptions = MMC_VIEW_OPTIONS_MULTISELECT;
    view->selectNode(root());
    EXPECT_EQ(recorder.count(L"IComponent2::GetResultViewType2"), 1);
    EXPECT_EQ(recorder.count(L"IComponent::GetResultViewType"), 0);
    EXPECT_TRUE(view->multiSelect());
    EXPECT_EQ(view->rowCount(), 8);
}

TEST_F(SelectionTest, aViewThatCannotBeShownSaysSo)
{
    settings.viewType = L"{8856F961-340A-11D0-A96B-00C04FD705A2}";
    view->selectNode(root());
    EXPECT_EQ(view->pane(), View::Pane::message);
    EXPECT_NE(view->message().find(L"ActiveX control {8856F961"), std::wstring::npos);
    settings.viewType = L"res://somewhere/page.htm";
    view->selectNode(child(0));
    EXPECT_NE(view->message().find(L"web page res://somewhere/page.htm"), std::wstring::npos);
}

TEST_F(SelectionTest, tearDownIsInTheRightOrder)
{
    view->selectNode(root());
    recorder.clear();
    stop();
    Sequence sequence = recorder.sequence();
    ASSERT_EQ(sequence.size(), 9u);
    EXPECT_EQ(sequence[6].find(L"data REMOVE_CHILDREN 0x"), 0u) << "with the node's handle";
    sequence.erase(sequence.begin() + 6);
    EXPECT_EQ(sequence, (Sequence{L"view SELECT 1", L"bars SELECT 1", L"view SHOW 0", L"SetControlbar", L"Destroy",
                                  L"Release", L"Destroy", L"Release"}));
}

TEST_F(SelectionTest, activationComesBeforeTheFirstShow)
{
    view->activate(true);
    view->selectNode(root());
    const Sequence sequence = recorder.sequence();
    const auto activated = std::find(sequence.begin(), sequence.end(), L"view ACTIVATE 1");
    const auto shown = std::find(sequence.begin(), sequence.end(), L"view SHOW 1");
    ASSERT_NE(activated, sequence.end());
    EXPECT_LT(activated, shown);
    recorder.clear();
    view->activate(false);
    view->minimize(true);
    EXPECT_EQ(recorder.sequence(), (Sequence{L"view ACTIVATE 0", L"view MINIMIZED 1"}));
}

TEST_F(SelectionTest, aSelectionThatTheSnapInAsksForComesAfterItsCall)
{
    settings.openOnDoubleClick = true;
    view->selectNode(root());
    listener.selected.clear();
    view->activateRow(3);
    EXPECT_EQ(view->selectedNode(), child(1));
    EXPECT_EQ(listener.selected, std::vector{child(1)});
    // No SHOW while DBLCLICK was on the stack.
    for (const Call& call : recorder.calls)
    {
        if (call.arguments.find(L"MMCN_SHOW") != std::wstring::npos)
        {
            EXPECT_EQ(call.depth, 0u);
        }
    }
}

TEST_F(SelectionTest, anUnhandledDoubleClickOpensANode)
{
    for (const HRESULT unhandled : {S_FALSE, E_NOTIMPL})
    {
        settings.unhandled = unhandled;
        view->selectNode(root());
        view->activateRow(2);
        EXPECT_EQ(view->selectedNode(), child(2));
    }
}

TEST_F(SelectionTest, deletingTheSelectedNodeSelectsItsParent)
{
    view->selectNode(root());
    view->selectNode(child(1));
    const NodeId gone = child(1);
    recorder.clear();
    view->runVerb(MMC_VERB_DELETE);
    EXPECT_FALSE(tree().contains(gone));
    EXPECT_EQ(view->selectedNode(), root());
    EXPECT_EQ(rowTexts().size(), 7u);
    EXPECT_EQ(listener.removed, 1);
    const Sequence sequence = recorder.sequence();
    EXPECT_EQ(sequence.front(), L"data DELETE 0");
    EXPECT_EQ(sequence[1], L"view SELECT 1");
    EXPECT_EQ(sequence[3], L"view SHOW 0");
}

TEST_F(SelectionTest, deletingAChildTakesItsRow)
{
    view->selectNode(root());
    view->selectRows({1});
    view->runVerb(MMC_VERB_DELETE);
    EXPECT_EQ(rowTexts(), (Sequence{L"Child 0", L"Child 2", L"Row 0", L"Row 1", L"Row 2", L"Row 3", L"Row 4"}));
    EXPECT_EQ(view->selectedNode(), root());
}

TEST_F(SelectionTest, twoViewsAreFilledAndUpdatedByThemselves)
{
    Listener otherListener;
    auto other = host->openView(otherListener);
    view->selectNode(root());
    other->selectNode(child(0));
    EXPECT_EQ(view->rowCount(), 8);
    EXPECT_EQ(other->rowCount(), 5);
    EXPECT_EQ(recorder.count(L"IComponentData::CreateComponent"), 2);
    other->selectRows({0});
    other->runVerb(MMC_VERB_DELETE);
    EXPECT_EQ(other->rowCount(), 4);
    EXPECT_EQ(view->rowCount(), 8);
    recorder.clear();
    other.reset();
    EXPECT_EQ(recorder.count(L"IComponent::Destroy"), 1);
    EXPECT_EQ(view->rowText(3, 0), L"Row 0");
    view->selectNode(child(1));
    EXPECT_EQ(view->rowCount(), 5);
}

TEST_F(SelectionTest, removingTheSnapInEmptiesItsViews)
{
    view->selectNode(root());
    host->removeSnapIn(*snapIn);
    EXPECT_EQ(view->pane(), View::Pane::nothing);
    EXPECT_EQ(view->rowCount(), 0);
    EXPECT_EQ(settings.liveObjects, 0);
    EXPECT_TRUE(tree().roots().empty());
}

TEST_F(SelectionTest, statusAndDescriptionAreTheNodesOwn)
{
    view->selectNode(root());
    EXPECT_EQ(view->status().left, L"100% full");
    EXPECT_EQ(view->status().progress, 42);
    EXPECT_EQ(view->status().right, L"ready");
    EXPECT_EQ(view->description(), L"Things");
    view->selectNode(NodeId::none);
    EXPECT_EQ(view->status().left, L"");
    EXPECT_EQ(view->description(), L"");
    EXPECT_EQ(view->pane(), View::Pane::nothing);
}
