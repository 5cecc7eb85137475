#include "ControlbarFace.h"

#include "Component.h"
#include "ViewState.h"

#include <algorithm>

namespace Console
{

using Microsoft::WRL::ComPtr;

namespace
{

template <class BarFace>
void moveToEnd(std::vector<ComPtr<BarFace>>& bars, const Bar* bar)
{
    const auto found = std::find_if(bars.begin(), bars.end(),
                                    [&](const ComPtr<BarFace>& each) { return static_cast<Bar*>(each.Get()) == bar; });
    if (found != bars.end())
    {
        std::rotate(found, found + 1, bars.end());
    }
}

} // namespace

void Bar::changed() const
{
    if (attached)
    {
        m_component.view().listener().toolbarsChanged();
    }
}

void ControlbarFace::clear()
{
    m_toolbars.clear();
    m_menuButtons.clear();
}

Bar* ControlbarFace::find(LPUNKNOWN bar) const
{
    for (const auto& toolbar : m_toolbars)
    {
        if (static_cast<IToolbar*>(toolbar.Get()) == bar)
        {
            return toolbar.Get();
        }
    }
    for (const auto& menuButton : m_menuButtons)
    {
        if (static_cast<IMenuButton*>(menuButton.Get()) == bar)
        {
            return menuButton.Get();
        }
    }
    return nullptr;
}

HRESULT ControlbarFace::Create(MMC_CONTROL_TYPE type, LPEXTENDCONTROLBAR extension, LPUNKNOWN* bar)
{
    return answer(
        L"IControlbar::Create", [&] { return listOf(L"nType", static_cast<int>(type), L"extension", extension); },
        [&]
        {
            if (bar == nullptr)
            {
                return E_POINTER;
            }
            *bar = nullptr;
            // Callers cast the result to IToolbar or IMenuButton without asking, so it must be just that interface.
            if (type == TOOLBAR)
            {
                const ComPtr<ToolbarFace> made(new ToolbarFace(owner(), m_component, ++m_lastId));
                m_toolbars.push_back(made);
                *bar = static_cast<IToolbar*>(made.Get());
            }
            else if (type == MENUBUTTON)
            {
                const ComPtr<MenuButtonFace> made(new MenuButtonFace(owner(), m_component, ++m_lastId));
                m_menuButtons.push_back(made);
                *bar = static_cast<IMenuButton*>(made.Get());
            }
            else
            {
                return type == COMBOBOXBAR ? E_NOTIMPL : E_INVALIDARG;
            }
            (*bar)->AddRef();
            return S_OK;
        });
}

HRESULT ControlbarFace::Attach(MMC_CONTROL_TYPE type, LPUNKNOWN bar)
{
    return answer(
        L"IControlbar::Attach", [&] { return listOf(L"nType", static_cast<int>(type), L"bar", bar); },
        [&]
        {
            Bar* const found = find(bar);
            if (found == nullptr || (type != TOOLBAR && type != MENUBUTTON))
            {
                complain(L"IControlbar::Attach was given something that IControlbar::Create did not make.");
                return E_INVALIDARG;
            }
            if (!found->attached)
            {
                found->attached = true;
                moveToEnd(m_toolbars, found);
                moveToEnd(m_menuButtons, found);
                m_component.view().listener().toolbarsChanged();
            }
            return S_OK;
        });
}

HRESULT ControlbarFace::Detach(LPUNKNOWN bar)
{
    return answer(
        L"IControlbar::Detach", [&] { return listOf(L"bar", bar); },
        [&]
        {
            Bar* const found = find(bar);
            if (found == nullptr)
            {
                return E_INVALIDARG;
            }
            if (found->attached)
            {
                found->attached = false;
                m_component.view().listener().toolbarsChanged();
            }
            return S_OK;
        });
}

} // namespace Console
