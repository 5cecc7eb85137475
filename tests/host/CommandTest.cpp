#include "HostTest.h"

#include <algorithm>

using namespace Console;

namespace
{

class CommandTest : public HostTest
{
  protected:
    static std::wstring shape(const std::vector<MenuItem>& items)
    {
        std::wstring text;
        for (const MenuItem& item : items)
        {
            text += text.empty() ? L"" : L" ";
            if (item.kind == MenuItem::Kind::separator)
            {
                text += L"-";
                continue;
            }
            text += std::wstring(item.isDefault ? L"*" : L"") + (item.checked ? L"+" : L"") +
                    (item.enabled ? L"" : L"~") + item.text;
            text += item.kind == MenuItem::Kind::submenu ? L"(" + shape(item.children) + L")" : L"";
        }
        return text;
    }
    static unsigned command(const std::vector<MenuItem>& items, const std::wstring& text)
    {
        for (const MenuItem& item : items)
        {
            if (item.kind == MenuItem::Kind::command && item.text == text)
            {
                return item.command;
            }
            if (const unsigned found = command(item.children, text); found != 0)
            {
                return found;
            }
        }
        return 0;
    }
};

} // namespace

TEST_F(CommandTest, theMenuOfTheSelectedNode)
{
    view->selectNode(root());
    ContextMenu menu = view->nodeMenu(root());
    EXPECT_EQ(shape(menu.items()), L"&Add... - &More(+&First &Deeper(~&Second)) - &View(Only &big ones) &New(&Thing) "
                                   L"All Tas&ks(&Job) - Cu&t &Copy ~&Paste &Delete Rena&me Re&fresh P&roperties");
    EXPECT_EQ(menu.items().front().statusText, L"does it");
    menu.run(command(menu.items(), L"&First"));
    EXPECT_EQ(settings.lastCommand, 2);
    menu.run(command(menu.items(), L"Only &big ones"));
    EXPECT_EQ(settings.lastCommand, 6);
    menu.run(9999);
    EXPECT_EQ(settings.lastCommand, 6);
}

TEST_F(CommandTest, theMenuOfAnotherNodeSelectsItWhileItIsOpen)
{
    view->selectNode(root());
    recorder.clear();
    {
        ContextMenu menu = view->nodeMenu(child(1));
        EXPECT_EQ(shape(menu.items()).find(L"&View"), std::wstring::npos) << "only the shown node has a view";
        menu.run(command(menu.items(), L"&Add..."));
        EXPECT_EQ(settings.lastCommand, 1);
        EXPECT_EQ(view->selectedNode(), root());
    }
    EXPECT_EQ(recorder.sequence(),
              (std::vector<std::wstring>{L"view SELECT 1", L"bars SELECT 1", L"view SELECT 0x10001",
                                         L"bars SELECT 0x10001", L"AddMenuItems", L"Command", L"view SELECT 1",
                                         L"bars SELECT 1", L"view SELECT 0x10001", L"bars SELECT 0x10001"}));
}

TEST_F(CommandTest, deletingANodeFromItsMenu)
{
    view->selectNode(root());
    const NodeId gone = child(1);
    {
        ContextMenu menu = view->nodeMenu(gone);
        menu.run(command(menu.items(), L"&Delete"));
    }
    EXPECT_FALSE(tree().contains(gone));
    EXPECT_EQ(view->selectedNode(), root());
}

TEST_F(CommandTest, theMenuOfARow)
{
    view->selectNode(root());
    view->selectRows({4});
    ContextMenu menu = view->rowMenu();
    EXPECT_EQ(shape(menu.items()), L"&Add... - &More(+&First &Deeper(~&Second)) - &New(&Thing) All Tas&ks(&Job) - "
                                   L"Cu&t &Copy &Delete Rena&me Re&fresh *P&roperties");
    menu.run(command(menu.items(), L"&Job"));
    EXPECT_EQ(settings.lastCommand, 5);
    EXPECT_EQ(settings.compositeSeen, 0);
}

TEST_F(CommandTest, commandsOnSeveralRowsCarryTheCompositeObject)
{
    settings.viewOptions = MMC_VIEW_OPTIONS_MULTISELECT;
    view->selectNode(root());
    view->selectRows({4, 5});
    {
        ContextMenu menu = view->rowMenu();
        menu.run(command(menu.items(), L"&Add..."));
    }
    EXPECT_EQ(settings.compositeSeen, 1);
    const auto bars = view->toolbars();
    view->pressToolbarButton(bars[0].id, 50);
    EXPECT_EQ(settings.compositeSeen, 2);
    // The deletion carries the snap-in's own object and must still find the rows.
    view->runVerb(MMC_VERB_DELETE);
    EXPECT_EQ(settings.rowsDeleted, 2);
}

TEST_F(CommandTest, verbsBelongToWhatIsSelected)
{
    view->selectNode(root());
    EXPECT_TRUE(view->verb(MMC_VERB_REFRESH).enabled);
    EXPECT_TRUE(view->verb(MMC_VERB_CUT).enabled) << "copy and delete are";
    EXPECT_FALSE(view->verb(MMC_VERB_PRINT).visible);
    EXPECT_FALSE(view->verb(MMC_VERB_NONE).enabled);
    view->selectNode(NodeId::none);
    EXPECT_FALSE(view->verb(MMC_VERB_REFRESH).enabled);
    recorder.clear();
    view->runVerb(MMC_VERB_REFRESH);
    EXPECT_TRUE(recorder.sequence().empty());
}

TEST_F(CommandTest, renamesNodesThroughTheComponentData)
{
    view->selectNode(root());
    view->selectNode(child(0));
    view->runVerb(MMC_VERB_RENAME);
    EXPECT_EQ(listener.renamedNode, child(0));
    recorder.clear();
    EXPECT_TRUE(view->renameNode(child(0), L"New name"));
    EXPECT_EQ(tree().text(child(0)), L"New name");
    EXPECT_EQ(recorder.sequence(), (std::vector<std::wstring>{L"data RENAME 0"}));
    EXPECT_FALSE(view->renameNode(child(0), L"!refused"));
    EXPECT_EQ(tree().text(child(0)), L"New name");
}

TEST_F(CommandTest, renamesRowsThroughTheComponent)
{
    view->selectNode(root());
    view->selectRows({3});
    view->runVerb(MMC_VERB_RENAME);
    EXPECT_EQ(listener.renamedRow, 3);
    recorder.clear();
    EXPECT_TRUE(view->renameRow(3, L"Other"));
    EXPECT_STREQ(settings.renamedTo, L"Other");
    EXPECT_FALSE(view->renameRow(3, L"!refused"));
    EXPECT_EQ(recorder.sequence(), (std::vector<std::wstring>{L"view RENAME 0", L"view RENAME 0"}));
    EXPECT_TRUE(view->renameRow(0, L"Node name")) << "a node's row";
    EXPECT_EQ(view->rowText(0, 0), L"Node name");
}

TEST_F(CommandTest, pastesWhatWasCopied)
{
    view->selectNode(root());
    EXPECT_FALSE(view->verb(MMC_VERB_PASTE).enabled) << "nothing was copied";
    view->selectRows({3});
    view->runVerb(MMC_VERB_COPY);
    view->selectRows({});
    EXPECT_TRUE(view->verb(MMC_VERB_PASTE).enabled);
    view->runVerb(MMC_VERB_PASTE);
    EXPECT_EQ(settings.lastCommand, MMCN_PASTE);
}

TEST_F(CommandTest, propertiesWithoutPagesAreAnsweredByTheSnapIn)
{
    view->selectNode(root());
    view->selectRows({3});
    recorder.clear();
    view->runVerb(MMC_VERB_PROPERTIES);
    const auto sequence = recorder.sequence();
    EXPECT_EQ(sequence, (std::vector<std::wstring>{L"QueryPagesFor", L"view BTN_CLICK 0"}));
    const auto click =
        std::find_if(recorder.calls.begin(), recorder.calls.end(),
                     [](const Call& call) { return call.arguments.find(L"MMCN_BTN_CLICK") != std::wstring::npos; });
    ASSERT_NE(click, recorder.calls.end());
    EXPECT_NE(click->arguments.find(L"param=" + std::to_wstring(MMC_VERB_PROPERTIES)), std::wstring::npos);
}
