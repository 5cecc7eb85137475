#include "frame/menus.h"

#include "frame/BareSnapIn.h"

namespace Acceptance
{
namespace
{

std::vector<MenuDouble::Item> menuOf(IExtendContextMenu& source, IDataObject* object)
{
    MenuDouble menu;
    long allowed =
        CCM_INSERTIONALLOWED_TOP | CCM_INSERTIONALLOWED_NEW | CCM_INSERTIONALLOWED_TASK | CCM_INSERTIONALLOWED_VIEW;
    EXPECT_EQ(S_OK, source.AddMenuItems(object, &menu, &allowed));
    return menu.items;
}

} // namespace

MenuDouble::Item topItem(const wchar_t* text, long command)
{
    return {.text = text,
            .statusText = L"",
            .command = command,
            .insertionPoint = static_cast<long>(CCM_INSERTIONPOINTID_PRIMARY_TOP),
            .flags = MF_ENABLED,
            .specialFlags = 0};
}

std::vector<MenuDouble::Item> menuOfNode(const std::wstring& path)
{
    BareSnapIn snapIn;
    return menuOf(*snapIn.menus().Get(), snapIn.object(path).Get());
}

std::vector<MenuDouble::Item> menuOfRow(const std::wstring& path, std::size_t row)
{
    BareSnapIn snapIn;
    const auto view = snapIn.makeView();
    const SCOPEDATAITEM node = snapIn.node(path);
    EXPECT_EQ(S_OK, view->component->Notify(snapIn.object(node.lParam).Get(), MMCN_SHOW, TRUE, node.ID));
    return menuOf(*view->menus().Get(), view->object(view->console.results.inserted.at(row).lParam).Get());
}

} // namespace Acceptance
