#pragma once

#include "ConsoleObject.h"
#include "MenuModel.h"

#include <wrl/client.h>

#include <memory>

namespace Console
{

// IContextMenuProvider: a snap-in puts together and shows a menu itself.
class MenuProviderPart final : public PartOf<IContextMenuProvider>
{
  public:
    using PartOf::PartOf;

    HRESULT STDMETHODCALLTYPE AddItem(CONTEXTMENUITEM* item) override;
    HRESULT STDMETHODCALLTYPE EmptyMenuList() override;
    HRESULT STDMETHODCALLTYPE AddPrimaryExtensionItems(LPUNKNOWN extension, LPDATAOBJECT object) override;
    HRESULT STDMETHODCALLTYPE AddThirdPartyExtensionItems(LPDATAOBJECT object) override;
    HRESULT STDMETHODCALLTYPE ShowContextMenu(HWND parent, __LONG32 x, __LONG32 y, __LONG32* selected) override;

  private:
    // Caller 1 is the snap-in through AddItem; the others are extensions.
    struct Extension
    {
        Microsoft::WRL::ComPtr<IUnknown> object;
        Microsoft::WRL::ComPtr<IDataObject> data;
    };
    void runExtension(const Extension& extension, long id);

    std::unique_ptr<MenuModel> m_model = std::make_unique<MenuModel>();
    std::vector<Extension> m_extensions;
};

} // namespace Console
