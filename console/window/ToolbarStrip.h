#pragma once

#include "ScaledImages.h"
#include "Window.h"

#include "console/host/Toolbar.h"

#include <commctrl.h>

#include <deque>
#include <string>
#include <vector>

namespace Console
{

// The bar below the menus: the console's own buttons, then those of the snap-ins, then their menu buttons.
class ToolbarStrip final : public Window
{
  public:
    class Owner
    {
      public:
        virtual ~Owner() = default;
        virtual void buttonPressed(unsigned bar, int command) = 0;
        // corner: the button's lower left one, on the screen.
        virtual void menuButtonPressed(unsigned group, int command, POINT corner) = 0;
    };

    // The console's own commands go to the parent as WM_COMMAND.
    ToolbarStrip(HWND parent, Owner& owner);
    ~ToolbarStrip() override;

    // The bar itself, which takes the focus.
    HWND control() const { return m_control; }
    int height() const;
    // After both of these the console's own buttons are disabled.
    void setAppearance(HFONT font, int dpi);
    // The image lists are lent until the next call.
    void setSnapInButtons(std::vector<Toolbar> bars, std::vector<MenuButton> menuButtons);
    void enable(int command, bool enabled);

  private:
    struct SnapInButton
    {
        unsigned bar = 0;
        int command = 0;
        bool menu = false;
        std::wstring tooltip;
    };

    LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT handleNotification(NMHDR& header);
    void build();
    void addOwnButtons();
    void addSnapInButton(const ToolbarButton& button, unsigned bar, int imageList);
    void addMenuButton(const MenuButton& button);
    void press(int number);

    Owner& m_owner;
    HWND m_control = nullptr;
    int m_dpi = 96;
    HIMAGELIST m_ownImages = nullptr;
    std::vector<Toolbar> m_bars;
    std::vector<MenuButton> m_menuButtons;
    std::deque<ScaledImages> m_images; // one for each bar
    std::vector<SnapInButton> m_buttons;
};

} // namespace Console
