#include "frame/menus.h"
#include "templates/TemplatesTest.h"

#include <gmock/gmock.h>

namespace Acceptance
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

// The context menus of resource folders, their files, and the users of an application.
class ResourceMenus : public TemplatesTest
{
  protected:
    void SetUp() override
    {
        TemplatesTest::SetUp();
        addApplication(L"Invoices");
        addFolder(L"Invoices", L"Images");
        addFile(L"Invoices", L"Images", L"logo.png");
    }
};

TEST_F(ResourceMenus, ofAFolderRenamesItOrAddsAFile)
{
    EXPECT_THAT(menuOfNode(nodeOf(L"Invoices\\Images")),
                ElementsAre(topItem(L"&Rename Folder...", 1065), topItem(L"&Add File...", 1064)));
}

TEST_F(ResourceMenus, ofAFileEditsIt)
{
    EXPECT_THAT(menuOfRow(nodeOf(L"Invoices\\Images"), 0), ElementsAre(topItem(L"&Edit File...", 1068)));
}

TEST_F(ResourceMenus, ofTheUsersGrantsAccess)
{
    EXPECT_THAT(menuOfNode(nodeOf(L"Invoices\\Users")), ElementsAre(topItem(L"&Grant Access To...", 1057)));
}

TEST_F(ResourceMenus, ofAUserIsEmpty)
{
    EXPECT_THAT(menuOfRow(nodeOf(L"Invoices\\Users"), 0), IsEmpty());
}

} // namespace
} // namespace Acceptance
