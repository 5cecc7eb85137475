#include "MenuProviderPart.h"

#include "Component.h"
#include "MenuCallbackFace.h"
#include "popupMenu.h"

namespace Console
{

using Microsoft::WRL::ComPtr;

namespace
{

constexpr long allSections =
    CCM_INSERTIONALLOWED_TOP | CCM_INSERTIONALLOWED_NEW | CCM_INSERTIONALLOWED_TASK | CCM_INSERTIONALLOWED_VIEW;

} // namespace

HRESULT MenuProviderPart::AddItem(CONTEXTMENUITEM* item)
{
    return m_whole.answer(L"IContextMenuProvider::AddItem", noArguments,
                          [&] { return item == nullptr ? E_POINTER : m_model->add(1, allSections, *item); });
}

HRESULT MenuProviderPart::EmptyMenuList()
{
    return m_whole.answer(L"IContextMenuProvider::EmptyMenuList", noArguments,
                          [&]
                          {
                              m_model = std::make_unique<MenuModel>();
                              m_extensions.clear();
                              return S_OK;
                          });
}

HRESULT MenuProviderPart::AddPrimaryExtensionItems(LPUNKNOWN extension, LPDATAOBJECT object)
{
    return m_whole.answer(
        L"IContextMenuProvider::AddPrimaryExtensionItems",
        [&] { return listOf(L"extension", extension, L"object", object); },
        [&]
        {
            if (extension == nullptr || object == nullptr)
            {
                return E_POINTER;
            }
            m_extensions.push_back({extension, IS_SPECIAL_DATAOBJECT(object) ? nullptr : object});
            const ComPtr<MenuCallbackFace> callback(new MenuCallbackFace(
                m_whole.owner(), *m_model, static_cast<unsigned>(m_extensions.size()) + 1, allSections));
            const HRESULT result = m_whole.instance().callOn<IExtendContextMenu>(
                m_whole.owner().view, extension, L"IExtendContextMenu::AddMenuItems",
                [&] { return listOf(L"object", object, L"allowed", allSections); },
                [&](IExtendContextMenu& menu)
                {
                    __LONG32 allowed = static_cast<__LONG32>(allSections);
                    return menu.AddMenuItems(object, callback.Get(), &allowed);
                });
            callback->disconnect();
            return result;
        });
}

HRESULT MenuProviderPart::AddThirdPartyExtensionItems(LPDATAOBJECT object)
{
    // No snap-in extends another one in this console.
    return m_whole.answer(
        L"IContextMenuProvider::AddThirdPartyExtensionItems", [&] { return listOf(L"object", object); },
        [] { return S_OK; });
}

HRESULT MenuProviderPart::ShowContextMenu(HWND parent, __LONG32 x, __LONG32 y, __LONG32* selected)
{
    return m_whole.answer(
        L"IContextMenuProvider::ShowContextMenu", [&] { return listOf(L"parent", parent, L"x", x, L"y", y); },
        [&]
        {
            if (selected == nullptr)
            {
                return E_POINTER;
            }
            *selected = 0;
            const unsigned chosen = trackPopupMenu(m_model->build(), parent, x, y);
            // Emptied whatever happens; another menu may be put together while the command runs.
            const std::unique_ptr<MenuModel> model = std::exchange(m_model, std::make_unique<MenuModel>());
            const std::vector<Extension> extensions = std::exchange(m_extensions, {});
            const MenuModel::Command* const command = model->find(chosen);
            if (command != nullptr && command->caller == 1)
            {
                *selected = static_cast<__LONG32>(command->id);
            }
            else if (command != nullptr && command->caller > 1)
            {
                runExtension(extensions[command->caller - 2], command->id);
            }
            return S_OK;
        });
}

void MenuProviderPart::runExtension(const Extension& extension, long id)
{
    m_whole.instance().callOn<IExtendContextMenu>(
        m_whole.owner().view, extension.object.Get(), L"IExtendContextMenu::Command",
        [&] { return listOf(L"id", id, L"object", extension.data.Get()); },
        [&](IExtendContextMenu& menu) { return menu.Command(static_cast<__LONG32>(id), extension.data.Get()); });
}

} // namespace Console
