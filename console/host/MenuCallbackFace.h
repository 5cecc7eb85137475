#pragma once

#include "Face.h"
#include "MenuModel.h"

namespace Console
{

// What a snap-in adds its menu items through. One caller's, and good only while it is asked.
class MenuCallbackFace final : public FaceBase, public IContextMenuCallback, public IContextMenuCallback2
{
  public:
    MenuCallbackFace(const FaceOwner& owner, MenuModel& model, unsigned caller, long allowed)
        : FaceBase(owner, L"IContextMenuCallback"), m_model(model), m_caller(caller), m_allowed(allowed)
    {
    }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return addReference(); }
    ULONG STDMETHODCALLTYPE Release() override { return dropReference(); }

    HRESULT STDMETHODCALLTYPE AddItem(CONTEXTMENUITEM* item) override;
    HRESULT STDMETHODCALLTYPE AddItem(CONTEXTMENUITEM2* item) override;

  private:
    HRESULT add(const CONTEXTMENUITEM* item);

    MenuModel& m_model;
    unsigned m_caller;
    long m_allowed;
};

} // namespace Console
