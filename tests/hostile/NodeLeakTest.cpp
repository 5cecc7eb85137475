#include "LeakTest.h"

#include "frame/SimulatedService.h"
#include "kit/ImportSpy.h"
#include "kit/windows.h"

namespace Hostile
{
namespace
{

class NodeLeak : public LeakTest
{
  protected:
    NodeLeak() { m_service.statuses = {{.state = SERVICE_RUNNING}}; }

  private:
    // In place of the real manager, which takes longer than all the rest.
    Acceptance::SimulatedService m_service;
    Acceptance::ImportSpy<"MessageBoxW", decltype(MessageBoxW)> m_messages{[](HWND, LPCWSTR text, LPCWSTR, UINT)
                                                                           {
                                                                               ADD_FAILURE()
                                                                                   << "a message that nobody expects: "
                                                                                   << Acceptance::narrow(text);
                                                                               return IDCANCEL;
                                                                           }};
};

TEST_F(NodeLeak, everyNodeShownLeavesNothing)
{
    int nodes = 0;
    for (const auto& [handle, record] : instance().console.scopeItems())
    {
        SCOPED_TRACE(++nodes);
        expectLevel(
            [&, handle = handle]
            {
                instance().show(view(), handle);
                instance().leave(view(), handle);
            });
    }
    EXPECT_EQ(18, nodes);
}

TEST_F(NodeLeak, everyRowSelectedLeavesNothing)
{
    HostileMenu menu(m_whim);
    const auto menus = view().as<IExtendContextMenu>();
    const auto bars = view().as<IExtendControlbar>();
    for (const auto& [handle, record] : instance().console.scopeItems())
    {
        instance().show(view(), handle);
        expectLevel(
            [&]
            {
                for (const HostileConsole::Row& row : view().console.rows())
                {
                    Microsoft::WRL::ComPtr<IDataObject> object;
                    view().component->QueryDataObject(row.cookie, CCT_RESULT, &object);
                    view().component->Notify(object.Get(), MMCN_SELECT, MAKELONG(FALSE, TRUE), 0);
                    bars->ControlbarNotify(MMCN_SELECT, MAKELONG(FALSE, TRUE), reinterpret_cast<LPARAM>(object.Get()));
                    long allowed = CCM_INSERTIONALLOWED_TOP;
                    menus->AddMenuItems(object.Get(), &menu, &allowed);
                    view().component->Notify(object.Get(), MMCN_SELECT, MAKELONG(FALSE, FALSE), 0);
                }
            });
        instance().leave(view(), handle);
    }
}

} // namespace
} // namespace Hostile
