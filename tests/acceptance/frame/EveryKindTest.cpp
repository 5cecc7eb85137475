#include "frame/BareSnapIn.h"
#include "frame/FilledServer.h"
#include "kit/windows.h"

namespace Acceptance
{
namespace
{

// What rows and nodes of every kind do alike.
class EveryKind : public FilledServer
{
  protected:
    // A node in a view.
    struct Shown : BareSnapIn
    {
        explicit Shown(const std::wstring& path) : record(node(path))
        {
            EXPECT_EQ(S_OK, notify(MMCN_SHOW, TRUE, record.ID));
        }

        HRESULT notify(MMC_NOTIFY_TYPE event, LPARAM arg = 0, LPARAM param = 0)
        {
            return view->component->Notify(object(record.lParam).Get(), event, arg, param);
        }
        ResultDataDouble& list() { return view->console.results; }

        std::unique_ptr<View> view = makeView();
        SCOPEDATAITEM record;
    };
};

// Proves: CertificateItem on a change that another view reports.
// Proves: TemplatePropertyItem on a change that another view reports.
// Proves: TemplateResourcesItem on a change that another view reports.
// Proves: TemplateUserItem on a change that another view reports.
TEST_F(EveryKind, ofRowIsDrawnAgainAloneWhereAViewReportsItsChange)
{
    for (const wchar_t* const path : {L"Hot Folders", L"Server Templates\\Invoices",
                                      L"Server Templates\\Invoices\\Users", L"Server Templates\\Invoices\\Images",
                                      L"Users", L"Server Certificates", L"Engine Settings\\Private Fonts", L"Log"})
    {
        SCOPED_TRACE(narrow(path));
        Shown snapIn(path);
        const RESULTDATAITEM row = snapIn.list().rows.at(0);
        const int clears = snapIn.list().clears;
        EXPECT_EQ(S_OK, snapIn.view->component->Notify(snapIn.view->object(row.lParam).Get(), MMCN_VIEW_CHANGE, 0, 0));
        EXPECT_EQ(std::vector<HRESULTITEM>{row.itemID}, snapIn.list().updated);
        EXPECT_EQ(clears, snapIn.list().clears);
    }
}

// Proves: TemplateResourcesCollection on the console's refresh.
// Proves: TemplateUserCollection on the console's refresh.
// Proves: TemplatesCollectionItem on the console's refresh.
TEST_F(EveryKind, ofNodeBelowAnApplicationIsReadAnewByARefresh)
{
    const struct
    {
        const wchar_t* path;
        void (*add)();
    } cases[] = {
        {L"Server Templates\\Invoices", [] { addTemplate(L"Invoices", L"bill.kvd"); }},
        {L"Server Templates\\Invoices\\Users",
         []
         {
             addUser(L"alice");
             grant(L"Invoices", L"alice");
         }},
        {L"Server Templates\\Invoices\\Images", [] { addFile(L"Invoices", L"Images", L"sign.png"); }},
    };
    for (const auto& [path, add] : cases)
    {
        SCOPED_TRACE(narrow(path));
        Shown snapIn(path);
        ASSERT_EQ(1u, snapIn.list().rows.size());
        add();
        EXPECT_EQ(S_OK, snapIn.notify(MMCN_REFRESH));
        EXPECT_EQ(2u, snapIn.list().rows.size());
    }
}

} // namespace
} // namespace Acceptance
