#include "certificates/CertificatesTest.h"
#include "frame/menus.h"

#include <gmock/gmock.h>

namespace Acceptance
{
namespace
{

using testing::ElementsAre;

class CertificateMenus : public CertificatesTest
{
};

TEST_F(CertificateMenus, ofTheNodeInstallsOne)
{
    EXPECT_THAT(menuOfNode(node), ElementsAre(topItem(install, 1012)));
}

// The separator before the properties is never shown.
TEST_F(CertificateMenus, ofACertificateHasThreeCommands)
{
    installCertificates({L"one.example"});
    EXPECT_THAT(menuOfRow(node, 0),
                ElementsAre(topItem(uninstall, 1013), topItem(exportCommand, 1017), topItem(properties, 1015)));
}

TEST_F(CertificateMenus, theNodeEnablesNoVerb)
{
    openNode();
    for (const MMC_CONSOLE_VERB verb :
         {MMC_VERB_DELETE, MMC_VERB_REFRESH, MMC_VERB_PROPERTIES, MMC_VERB_RENAME, MMC_VERB_COPY, MMC_VERB_PASTE})
    {
        EXPECT_FALSE(view().view().verb(verb).enabled) << verb;
    }
}

TEST_F(CertificateMenus, aCertificateEnablesDeleteAlone)
{
    installCertificates({L"one.example"});
    openNode();
    view().view().selectRows({0});
    EXPECT_TRUE(view().view().verb(MMC_VERB_DELETE).enabled);
    for (const MMC_CONSOLE_VERB verb :
         {MMC_VERB_REFRESH, MMC_VERB_PROPERTIES, MMC_VERB_RENAME, MMC_VERB_COPY, MMC_VERB_PASTE})
    {
        EXPECT_FALSE(view().view().verb(verb).enabled) << verb;
    }
}

} // namespace
} // namespace Acceptance
