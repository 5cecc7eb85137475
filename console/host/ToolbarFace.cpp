#include "ControlbarFace.h"

#include <algorithm>
#include <cstdlib>

namespace Console
{

namespace
{

std::wstring textOf(const wchar_t* text)
{
    return text == nullptr ? std::wstring() : std::wstring(text);
}

} // namespace

ToolbarFace::ToolbarFace(const FaceOwner& owner, Component& component, unsigned id)
    : Face(owner, L"a toolbar"), Bar(component), m_images(ImageList_Create(16, 16, ILC_COLOR32 | ILC_MASK, 4, 4))
{
    m_model.id = id;
    m_model.images = m_images.get();
}

HRESULT ToolbarFace::AddBitmap(int count, HBITMAP bitmap, int width, int height, COLORREF mask)
{
    return answer(
        L"IToolbar::AddBitmap",
        [&] { return listOf(L"nImages", count, L"cxSize", width, L"cySize", height, L"crMask", mask); },
        [&]
        {
            BITMAP data{};
            if (count <= 0 || width != 16 || height != 16 || GetObjectW(bitmap, sizeof data, &data) == 0 ||
                data.bmWidth < count * 16 || std::abs(data.bmHeight) < 16)
            {
                return E_INVALIDARG;
            }
            const platform::Bitmap copy(static_cast<HBITMAP>(CopyImage(bitmap, IMAGE_BITMAP, 0, 0, 0)));
            if (!copy || ImageList_AddMasked(m_images.get(), copy.get(), mask) < 0)
            {
                return E_FAIL;
            }
            changed();
            return S_OK;
        });
}

HRESULT ToolbarFace::add(const MMCBUTTON& button)
{
    ToolbarButton added;
    // The upper half may hold anything.
    added.command = LOWORD(button.idCommand);
    added.separator = (button.fsType & TBSTYLE_SEP) != 0;
    added.checkable = (button.fsType & TBSTYLE_CHECK) != 0;
    added.image = added.separator ? -1 : button.nBitmap;
    added.text = textOf(button.lpButtonText);
    added.tooltip = textOf(button.lpTooltipText);
    added.enabled = (button.fsState & TBSTATE_ENABLED) != 0;
    added.checked = (button.fsState & TBSTATE_CHECKED) != 0;
    added.hidden = (button.fsState & TBSTATE_HIDDEN) != 0;
    added.indeterminate = (button.fsState & TBSTATE_INDETERMINATE) != 0;
    added.pressed = (button.fsState & TBSTATE_PRESSED) != 0;
    const bool taken = std::any_of(m_model.buttons.begin(), m_model.buttons.end(),
                                   [&](const ToolbarButton& present)
                                   { return !present.separator && present.command == added.command; });
    if (!added.separator && taken)
    {
        complain(L"A toolbar was given a second button with command " + describe(added.command) + L".");
        return E_INVALIDARG;
    }
    m_model.buttons.push_back(std::move(added));
    return S_OK;
}

HRESULT ToolbarFace::AddButtons(int count, LPMMCBUTTON buttons)
{
    return answer(
        L"IToolbar::AddButtons", [&] { return listOf(L"nButtons", count); },
        [&]
        {
            if (buttons == nullptr || count < 1)
            {
                return E_INVALIDARG;
            }
            HRESULT result = S_OK;
            for (int button = 0; button < count && result == S_OK; ++button)
            {
                result = add(buttons[button]);
            }
            changed();
            return result;
        });
}

HRESULT ToolbarFace::InsertButton(int index, LPMMCBUTTON button)
{
    return answer(
        L"IToolbar::InsertButton", [&] { return listOf(L"nIndex", index); },
        [&]
        {
            if (button == nullptr)
            {
                return E_INVALIDARG;
            }
            // Goes to the end whatever the index says, as in the real console.
            const HRESULT result = add(*button);
            changed();
            return result;
        });
}

HRESULT ToolbarFace::DeleteButton(int index)
{
    return answer(
        L"IToolbar::DeleteButton", [&] { return listOf(L"nIndex", index); },
        [&]
        {
            if (index < 0 || index >= static_cast<int>(m_model.buttons.size()))
            {
                return E_INVALIDARG;
            }
            m_model.buttons.erase(m_model.buttons.begin() + index);
            changed();
            return S_OK;
        });
}

bool* ToolbarFace::stateOf(int command, MMC_BUTTON_STATE state)
{
    const auto found =
        std::find_if(m_model.buttons.begin(), m_model.buttons.end(),
                     [&](const ToolbarButton& button) { return !button.separator && button.command == command; });
    if (found == m_model.buttons.end())
    {
        return nullptr;
    }
    switch (state)
    {
    case ENABLED:
        return &found->enabled;
    case CHECKED:
        return &found->checked;
    case HIDDEN:
        return &found->hidden;
    case INDETERMINATE:
        return &found->indeterminate;
    case BUTTONPRESSED:
        return &found->pressed;
    default:
        return nullptr; // more than one state at once
    }
}

HRESULT ToolbarFace::GetButtonState(int command, MMC_BUTTON_STATE state, WINBOOL* value)
{
    return answer(
        L"IToolbar::GetButtonState", [&] { return listOf(L"idCommand", command, L"state", static_cast<int>(state)); },
        [&]
        {
            const bool* const found = stateOf(command, state);
            if (value == nullptr || found == nullptr)
            {
                return value == nullptr ? E_POINTER : E_INVALIDARG;
            }
            *value = *found;
            return S_OK;
        });
}

HRESULT ToolbarFace::SetButtonState(int command, MMC_BUTTON_STATE state, WINBOOL value)
{
    return answer(
        L"IToolbar::SetButtonState",
        [&] { return listOf(L"idCommand", command, L"state", static_cast<int>(state), L"value", value); },
        [&]
        {
            bool* const found = stateOf(command, state);
            if (found == nullptr)
            {
                return E_INVALIDARG;
            }
            if (!attached)
            {
                complain(L"IToolbar::SetButtonState was called while the toolbar was not attached.");
                return E_UNEXPECTED;
            }
            *found = value != FALSE;
            changed();
            return S_OK;
        });
}

MenuButton* MenuButtonFace::find(int command)
{
    const auto found = std::find_if(m_buttons.begin(), m_buttons.end(),
                                    [&](const MenuButton& button) { return button.command == command; });
    return found == m_buttons.end() ? nullptr : &*found;
}

HRESULT MenuButtonFace::AddButton(int command, LPOLESTR text, LPOLESTR tooltip)
{
    return answer(
        L"IMenuButton::AddButton",
        [&] { return listOf(L"idCommand", command, L"text", static_cast<const wchar_t*>(text)); },
        [&]
        {
            if (text == nullptr || find(command) != nullptr)
            {
                return E_INVALIDARG;
            }
            MenuButton button;
            button.id = m_id;
            button.command = command;
            button.text = text;
            button.tooltip = textOf(tooltip);
            m_buttons.push_back(std::move(button));
            changed();
            return S_OK;
        });
}

HRESULT MenuButtonFace::SetButton(int command, LPOLESTR text, LPOLESTR tooltip)
{
    return answer(
        L"IMenuButton::SetButton",
        [&] { return listOf(L"idCommand", command, L"text", static_cast<const wchar_t*>(text)); },
        [&]
        {
            MenuButton* const button = find(command);
            if (text == nullptr || button == nullptr)
            {
                return E_INVALIDARG;
            }
            button->text = text;
            button->tooltip = textOf(tooltip);
            changed();
            return S_OK;
        });
}

HRESULT MenuButtonFace::SetButtonState(int command, MMC_BUTTON_STATE state, WINBOOL value)
{
    return answer(
        L"IMenuButton::SetButtonState",
        [&] { return listOf(L"idCommand", command, L"state", static_cast<int>(state), L"value", value); },
        [&]
        {
            MenuButton* const button = find(command);
            if (button == nullptr)
            {
                return E_INVALIDARG;
            }
            switch (state)
            {
            case ENABLED:
                button->enabled = value != FALSE;
                break;
            case HIDDEN:
                button->hidden = value != FALSE;
                break;
            case BUTTONPRESSED:
                button->pressed = value != FALSE;
                break;
            default:
                return E_INVALIDARG;
            }
            changed();
            return S_OK;
        });
}

} // namespace Console
