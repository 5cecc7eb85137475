#pragma once

#include "frame/doubles/ComDouble.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace Acceptance
{

// Remembers its picture, its buttons and the last state of each.
class ToolbarDouble final : public ComDouble<IToolbar>
{
  public:
    struct Picture
    {
        int images;
        BITMAP bitmap;
        int width;
        int height;
        COLORREF mask;
    };
    struct Button
    {
        int image;
        int command;
        BYTE state;
        BYTE type;
        std::wstring text;
        std::wstring tip;

        bool operator==(const Button&) const = default;
    };

    HRESULT STDMETHODCALLTYPE AddBitmap(int images, HBITMAP bitmap, int width, int height, COLORREF mask) override
    {
        Picture picture{images, {}, width, height, mask};
        GetObjectW(bitmap, sizeof picture.bitmap, &picture.bitmap);
        pictures.push_back(picture);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE AddButtons(int count, MMCBUTTON* added) override
    {
        for (const MMCBUTTON* button = added; button != added + count; ++button)
        {
            buttons.push_back({button->nBitmap, button->idCommand, button->fsState, button->fsType,
                               button->lpButtonText, button->lpTooltipText});
        }
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE SetButtonState(int command, MMC_BUTTON_STATE state, BOOL on) override
    {
        states[{command, state}] = on != FALSE;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE InsertButton(int, MMCBUTTON*) override { return uncalled("InsertButton"); }
    HRESULT STDMETHODCALLTYPE DeleteButton(int) override { return uncalled("DeleteButton"); }
    HRESULT STDMETHODCALLTYPE GetButtonState(int, MMC_BUTTON_STATE, BOOL*) override
    {
        return uncalled("GetButtonState");
    }

    std::vector<Picture> pictures;
    std::vector<Button> buttons;
    std::map<std::pair<int, MMC_BUTTON_STATE>, bool> states;
};

} // namespace Acceptance
