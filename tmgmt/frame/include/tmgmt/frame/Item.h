#pragma once

#include "tmgmt/frame/ImageStrip.h"
#include "tmgmt/frame/ServiceControl.h"
#include "tmgmt/frame/ServiceToolbar.h"
#include "tmgmt/frame/classIds.h"
#include "tmgmt/resources/ids.h"
#include "tmgmt/snapin/CSnapInItemImpl.h"
#include "tmgmt/snapin/Console.h"

namespace TMgmt
{

// The base of every node of this plug-in: turns the console's notifications into the handlers below, each with a
// default, and carries the commands that start and stop the server's service. A node class overrides what it needs.
template <class T>
class Item : public CSnapInItemImpl<T>
{
  public:
    static constexpr CLSID snapInClassId = CLSID_MMCSnapIn;
    static constexpr UINT menu = 0;

    HRESULT Notify(MMC_NOTIFY_TYPE event, LPARAM arg, LPARAM param, Console& console, DATA_OBJECT_TYPES) override
    {
        switch (event)
        {
        case MMCN_SHOW:
            return OnShow(arg != 0, param, console);
        case MMCN_EXPAND:
            return OnExpand(arg != 0, param, console);
        case MMCN_ADD_IMAGES:
            return OnAddImages(reinterpret_cast<IImageList*>(arg));
        case MMCN_DBLCLICK:
            return OnDblClick(console);
        case MMCN_SELECT:
            return OnSelect(LOWORD(arg) != 0, HIWORD(arg) != 0, console);
        case MMCN_DELETE:
            return OnDelete(console);
        case MMCN_VIEW_CHANGE:
            return OnViewChange(arg, param, console);
        case MMCN_REFRESH:
            return OnRefresh(console);
        case MMCN_BTN_CLICK:
            return param == MMC_VERB_PROPERTIES ? OnPropertiesVerb(console) : E_NOTIMPL;
        default:
            return E_NOTIMPL;
        }
    }

    HRESULT GetResultPaneInfo(RESULTDATAITEM& item) override
    {
        if (item.mask & RDI_STR)
        {
            // The console only reads the text; the field is not const for its own use.
            item.str = const_cast<LPOLESTR>(GetResultPaneColInfo(item.nCol));
        }
        if (item.mask & RDI_IMAGE)
        {
            item.nImage = this->GetResultData().nImage;
        }
        return S_OK;
    }

    HRESULT Command(long command, Console& console, DATA_OBJECT_TYPES) override
    {
        bool handled = false;
        switch (command)
        {
        case ID_START_SERVICE:
            return OnStartService(handled, console);
        case ID_STOP_SERVICE:
            return OnStopService(handled, console);
        default:
            return S_OK;
        }
    }

    HRESULT SetControlbar(ControlbarSite& site) override { return attachServiceToolbar(site); }

    HRESULT ControlbarNotify(MMC_NOTIFY_TYPE event, LPARAM, LPARAM param, ControlbarSite& site,
                             Console& console) override
    {
        if (event == MMCN_SELECT)
        {
            showServiceState(site);
            return S_OK;
        }
        bool handled = false;
        switch (param)
        {
        case ID_START_SERVICE:
            return OnStartService(handled, console);
        case ID_STOP_SERVICE:
            return OnStopService(handled, console);
        default:
            return E_NOTIMPL;
        }
    }

    virtual HRESULT OnStartService(bool& handled, Console& console)
    {
        handled = true;
        const HRESULT result = StartServerService();
        return result == S_OK ? serviceChanged(console) : result;
    }

    virtual HRESULT OnStopService(bool& handled, Console& console)
    {
        handled = true;
        const HRESULT result = StopServerService();
        return result == S_OK ? serviceChanged(console) : result;
    }

    // The text of one column when the node is a row. It belongs to the node and lives until it is asked for again.
    virtual const wchar_t* GetResultPaneColInfo(int) { return this->displayName().c_str(); }

    virtual HRESULT OnShow(bool, HSCOPEITEM, Console&) { return E_NOTIMPL; }
    virtual HRESULT OnExpand(bool, HSCOPEITEM, Console&) { return E_NOTIMPL; }
    virtual HRESULT OnAddImages(IImageList* images) { return images ? loadImageStrip(*images) : E_POINTER; }
    // A node of the tree that is listed as a row opens.
    virtual HRESULT OnDblClick(Console& console) { return console.selectScopeItem(this->GetScopeData().ID); }
    virtual HRESULT OnSelect(bool, bool, Console&) { return E_NOTIMPL; }
    virtual HRESULT OnDelete(Console&) { return E_NOTIMPL; }

    virtual HRESULT OnViewChange(LPARAM, LPARAM, Console& console)
    {
        console.clearRows();
        insertRows(console);
        return S_OK;
    }

    virtual HRESULT OnRefresh(Console&) { return E_NOTIMPL; }
    virtual HRESULT OnPropertiesVerb(Console&) { return E_NOTIMPL; }

  protected:
    using CSnapInItemImpl<T>::CSnapInItemImpl;

    // For OnSelect: what is selected can be deleted, refreshed and so on.
    static HRESULT enableVerb(MMC_CONSOLE_VERB verb, bool isSelected, Console& console)
    {
        return !isSelected || console.enableVerb(verb) ? S_OK : S_FALSE;
    }

    // Puts the node's own rows into an empty result pane. A node without rows of its own has nothing to do.
    virtual void insertRows(Console&) {}

  private:
    // The buttons of the toolbar, and what else shows the state of the service, take the new state at once.
    HRESULT serviceChanged(Console& console)
    {
        if (IExtendControlbar* const view = console.controlbar())
        {
            const auto object = this->GetDataObject(CCT_RESULT);
            view->ControlbarNotify(MMCN_SELECT, MAKELONG(FALSE, TRUE), reinterpret_cast<LPARAM>(object.Get()));
        }
        else
        {
            console.updateAllViews(*this, CCT_SCOPE);
        }
        return S_OK;
    }
};

} // namespace TMgmt
