#pragma once

#include "Face.h"
#include "ImageStore.h"
#include "console/host/Toolbar.h"
#include "platform/mmc.h"

#include <wrl/client.h>

#include <vector>

namespace Console
{

class Component;

// A bar or a group of menu buttons that a snap-in made. Shown while attached.
class Bar
{
  public:
    explicit Bar(Component& component) : m_component(component) {}
    virtual ~Bar() = default;
    virtual IUnknown* unknown() = 0;

    bool attached = false;

  protected:
    void changed() const;

    Component& m_component;
};

// IToolbar; the model of one toolbar.
class ToolbarFace final : public Face<IToolbar>, public Bar
{
  public:
    ToolbarFace(const FaceOwner& owner, Component& component, unsigned id);

    const Toolbar& model() const { return m_model; }
    IUnknown* unknown() override { return this; }

    HRESULT STDMETHODCALLTYPE AddBitmap(int count, HBITMAP bitmap, int width, int height, COLORREF mask) override;
    HRESULT STDMETHODCALLTYPE AddButtons(int count, LPMMCBUTTON buttons) override;
    HRESULT STDMETHODCALLTYPE InsertButton(int index, LPMMCBUTTON button) override;
    HRESULT STDMETHODCALLTYPE DeleteButton(int index) override;
    HRESULT STDMETHODCALLTYPE GetButtonState(int command, MMC_BUTTON_STATE state, WINBOOL* value) override;
    HRESULT STDMETHODCALLTYPE SetButtonState(int command, MMC_BUTTON_STATE state, WINBOOL value) override;

  private:
    HRESULT add(const MMCBUTTON& button);
    bool* stateOf(int command, MMC_BUTTON_STATE state);

    ImageListHandle m_images;
    Toolbar m_model;
};

// IMenuButton; the model of one group of menu buttons.
class MenuButtonFace final : public Face<IMenuButton>, public Bar
{
  public:
    MenuButtonFace(const FaceOwner& owner, Component& component, unsigned id)
        : Face(owner, L"a menu button"), Bar(component), m_id(id)
    {
    }

    const std::vector<MenuButton>& model() const { return m_buttons; }
    unsigned id() const { return m_id; }
    IUnknown* unknown() override { return this; }

    HRESULT STDMETHODCALLTYPE AddButton(int command, LPOLESTR text, LPOLESTR tooltip) override;
    HRESULT STDMETHODCALLTYPE SetButton(int command, LPOLESTR text, LPOLESTR tooltip) override;
    HRESULT STDMETHODCALLTYPE SetButtonState(int command, MMC_BUTTON_STATE state, WINBOOL value) override;

  private:
    MenuButton* find(int command);

    unsigned m_id;
    std::vector<MenuButton> m_buttons;
};

// IControlbar: what a component gets to make its bars with.
class ControlbarFace final : public Face<IControlbar>
{
  public:
    ControlbarFace(const FaceOwner& owner, Component& component) : Face(owner, L"IControlbar"), m_component(component)
    {
    }

    const std::vector<Microsoft::WRL::ComPtr<ToolbarFace>>& toolbars() const { return m_toolbars; }
    const std::vector<Microsoft::WRL::ComPtr<MenuButtonFace>>& menuButtons() const { return m_menuButtons; }
    // Lets go of the bars that were made.
    void clear();

    HRESULT STDMETHODCALLTYPE Create(MMC_CONTROL_TYPE type, LPEXTENDCONTROLBAR extension, LPUNKNOWN* bar) override;
    HRESULT STDMETHODCALLTYPE Attach(MMC_CONTROL_TYPE type, LPUNKNOWN bar) override;
    HRESULT STDMETHODCALLTYPE Detach(LPUNKNOWN bar) override;

  private:
    Bar* find(LPUNKNOWN bar) const;

    Component& m_component;
    unsigned m_lastId = 0;
    // Attached ones in the order of attaching.
    std::vector<Microsoft::WRL::ComPtr<ToolbarFace>> m_toolbars;
    std::vector<Microsoft::WRL::ComPtr<MenuButtonFace>> m_menuButtons;
};

} // namespace Console
