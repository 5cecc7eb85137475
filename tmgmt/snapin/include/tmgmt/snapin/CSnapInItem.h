#pragma once

#include "platform/mmc.h"

#include <wrl/client.h>

#include <cstddef>
#include <vector>

#include "brimlow/system/Object.h"

namespace TMgmt
{

class Console;
class ControlbarSite;
class SnapInDataObject;

// One node: an item of the console's tree, a row of its result pane, or both. This is the console's side of it; the
// methods may throw, since the components that call them stand behind the guard.
class CSnapInItem : public Core::Object
{
  public:
    // A notification for this node. console is the caller's; type tells whether the node was reached as a scope item
    // or as a result row. E_NOTIMPL: not handled.
    virtual HRESULT Notify(MMC_NOTIFY_TYPE event, LPARAM arg, LPARAM param, Console& console,
                           DATA_OBJECT_TYPES type) = 0;
    // Fills in what the mask of item asks for.
    virtual HRESULT GetScopePaneInfo(SCOPEDATAITEM& item) = 0;
    virtual HRESULT GetResultViewType(LPOLESTR* viewType, LONG* options) = 0;
    // Fills in what the mask of item asks for. The text belongs to the node and lives until it is asked for again.
    virtual HRESULT GetResultPaneInfo(RESULTDATAITEM& item) = 0;
    // allowed has the CCM_INSERTIONALLOWED_ bits.
    virtual HRESULT AddMenuItems(IContextMenuCallback& menu, LONG allowed, DATA_OBJECT_TYPES type) = 0;
    virtual HRESULT Command(long command, Console& console, DATA_OBJECT_TYPES type) = 0;
    virtual HRESULT CreatePropertyPages(IPropertySheetCallback& sheet, LONG_PTR handle, DATA_OBJECT_TYPES type) = 0;
    virtual HRESULT QueryPagesFor(DATA_OBJECT_TYPES type) = 0;
    // The view's control bar came, or went: then the site has none, and what was attached to it is detached already.
    virtual HRESULT SetControlbar(ControlbarSite& site) = 0;
    // arg and param as IExtendControlbar has them.
    virtual HRESULT ControlbarNotify(MMC_NOTIFY_TYPE event, LPARAM arg, LPARAM param, ControlbarSite& site,
                                     Console& console) = 0;
    // Reads the node's rows anew from where they are kept and lists them in every view that shows the node. Called
    // through Console::refreshResultList. A node without rows of its own has nothing to do.
    virtual void refreshResultList(Console&) {}
    // One of the node's rows shows something else than what is stored: they are made anew when they are listed next.
    virtual void discardRows() noexcept {}
    virtual SCOPEDATAITEM& GetScopeData() = 0;
    virtual RESULTDATAITEM& GetResultData() = 0;
    // The node's answer in one clipboard format; DV_E_CLIPFORMAT for a format that it does not have.
    virtual HRESULT FillData(CLIPFORMAT format, std::vector<std::byte>& data) = 0;
    // Makes a fresh data object stand for this node.
    virtual void InitDataClass(SnapInDataObject& object, DATA_OBJECT_TYPES type) = 0;
    virtual Microsoft::WRL::ComPtr<IDataObject> GetDataObject(DATA_OBJECT_TYPES type) = 0;

    // The number by which the console names this node.
    MMC_COOKIE cookie() const noexcept { return m_cookie; }

    // How often a view began to show the node.
    unsigned showings() const noexcept { return m_showings; }
    void countShowing() noexcept { ++m_showings; }

  protected:
    CSnapInItem();
    ~CSnapInItem() override;

  private:
    const MMC_COOKIE m_cookie;
    unsigned m_showings = 0;
};

} // namespace TMgmt
