#include "tmgmt/frame/ServiceToolbar.h"

#include "platform/handles.h"

#include <commctrl.h>

#include <array>
#include <string>

#include "tmgmt/frame/ImageStrip.h"
#include "tmgmt/frame/ServiceControl.h"
#include "tmgmt/frame/toolbarResource.h"
#include "tmgmt/resources/ids.h"
#include "tmgmt/snapin/guard.h"
#include "tmgmt/ui/moduleResources.h"

using Microsoft::WRL::ComPtr;

namespace TMgmt
{
namespace
{

void addButtons(IToolbar& toolbar)
{
    const ToolbarResource resource = loadToolbarResource(IDR_SERVICE_TOOLBAR);
    const platform::Bitmap pictures(LoadBitmapW(moduleInstance(), MAKEINTRESOURCEW(IDR_SERVICE_TOOLBAR)));
    if (!pictures)
    {
        throw ComError(E_FAIL);
    }
    throwIfFailed(toolbar.AddBitmap(static_cast<int>(resource.commands.size()), pictures.get(), resource.width,
                                    resource.height, maskColour));
    for (std::size_t i = 0; i < resource.commands.size(); ++i)
    {
        std::wstring tip = loadText(resource.commands[i]);
        wchar_t noText[] = L"";
        MMCBUTTON button{};
        button.nBitmap = static_cast<int>(i);
        button.idCommand = resource.commands[i];
        button.fsType = TBSTYLE_BUTTON;
        button.lpButtonText = noText;
        button.lpTooltipText = tip.data();
        throwIfFailed(toolbar.AddButtons(1, &button));
    }
}

void showState(IToolbar& toolbar, int command, bool enabled)
{
    toolbar.SetButtonState(command, ENABLED, enabled);
    for (const MMC_BUTTON_STATE off : {CHECKED, HIDDEN, INDETERMINATE, BUTTONPRESSED})
    {
        toolbar.SetButtonState(command, off, FALSE);
    }
}

} // namespace

HRESULT attachServiceToolbar(ControlbarSite& site)
{
    if (!site.controlbar)
    {
        return S_OK;
    }
    ComPtr<IUnknown> made;
    throwIfFailed(site.controlbar->Create(TOOLBAR, &site.owner(), &made));
    ComPtr<IToolbar> toolbar;
    throwIfFailed(made.As(&toolbar));
    addButtons(*toolbar.Get());
    throwIfFailed(site.controlbar->Attach(TOOLBAR, toolbar.Get()));
    site.toolbar = toolbar;
    return S_OK;
}

void showServiceState(ControlbarSite& site)
{
    if (!site.toolbar)
    {
        return;
    }
    // A message box of the query runs a loop in which the console may take the toolbar away.
    const ComPtr<IToolbar> toolbar = site.toolbar;
    const DWORD state = QueryServerServiceState();
    showState(*toolbar.Get(), ID_START_SERVICE, state == SERVICE_STOPPED || state == SERVICE_PAUSED);
    showState(*toolbar.Get(), ID_STOP_SERVICE, state == SERVICE_RUNNING || state == SERVICE_PAUSED);
}

} // namespace TMgmt
