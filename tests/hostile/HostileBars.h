#pragma once

#include "Whim.h"

#include "frame/doubles/ComDouble.h"

namespace Hostile
{

// A toolbar whose every call may fail.
class HostileToolbar final : public Acceptance::ComDouble<IToolbar>
{
  public:
    explicit HostileToolbar(Whim& whim) : m_whim(whim) {}

    HRESULT STDMETHODCALLTYPE AddBitmap(int, HBITMAP, int, int, COLORREF) override { return m_whim.answer(); }
    HRESULT STDMETHODCALLTYPE AddButtons(int, MMCBUTTON*) override { return m_whim.answer(); }
    HRESULT STDMETHODCALLTYPE InsertButton(int, MMCBUTTON*) override { return m_whim.answer(); }
    HRESULT STDMETHODCALLTYPE DeleteButton(int) override { return m_whim.answer(); }
    HRESULT STDMETHODCALLTYPE GetButtonState(int, MMC_BUTTON_STATE, BOOL* on) override
    {
        *on = FALSE;
        return m_whim.answer();
    }
    HRESULT STDMETHODCALLTYPE SetButtonState(int, MMC_BUTTON_STATE, BOOL) override { return m_whim.answer(); }

  private:
    Whim& m_whim;
};

// A control bar with room for one toolbar, whose every call may fail.
class HostileControlbar final : public Acceptance::ComDouble<IControlbar>
{
  public:
    explicit HostileControlbar(Whim& whim) : m_whim(whim), m_toolbar(whim) {}

    HRESULT STDMETHODCALLTYPE Create(MMC_CONTROL_TYPE, IExtendControlbar*, IUnknown** made) override
    {
        *made = nullptr;
        const HRESULT answer = m_whim.answer();
        return FAILED(answer) ? answer : m_toolbar.QueryInterface(__uuidof(IToolbar), reinterpret_cast<void**>(made));
    }
    HRESULT STDMETHODCALLTYPE Attach(MMC_CONTROL_TYPE, IUnknown*) override { return m_whim.answer(); }
    HRESULT STDMETHODCALLTYPE Detach(IUnknown*) override { return m_whim.answer(); }

  private:
    Whim& m_whim;
    HostileToolbar m_toolbar;
};

// A menu that may refuse any entry.
class HostileMenu final : public Acceptance::ComDouble<IContextMenuCallback>
{
  public:
    explicit HostileMenu(Whim& whim) : m_whim(whim) {}

    HRESULT STDMETHODCALLTYPE AddItem(CONTEXTMENUITEM*) override { return m_whim.answer(); }

  private:
    Whim& m_whim;
};

} // namespace Hostile
