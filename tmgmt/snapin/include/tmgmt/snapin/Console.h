#pragma once

#include "platform/mmc.h"

#include <wrl/client.h>

#include <memory>
#include <vector>

#include "brimlow/system/SmartPtr.h"

#include "tmgmt/snapin/CSnapInItem.h"

namespace TMgmt
{

class ViewRows;

// The console as one call's caller has it: the component data's or one view's. It is held for the length of the call,
// so that the caller may be destroyed meanwhile. Methods throw ComError where nothing else is said.
class Console
{
  public:
    // The component data is the caller. Throws ComError(E_UNEXPECTED) without a console: a call before Initialize or
    // after Destroy.
    explicit Console(Microsoft::WRL::ComPtr<IConsole> console) : Console(console, console, nullptr, nullptr) {}
    // A view is the caller. tree is the component data's console, the one that the tree belongs to: a view's own
    // answers for the tree in some consoles only. Null where it is not there (any more). Throws in the same way.
    Console(Microsoft::WRL::ComPtr<IConsole> console, Microsoft::WRL::ComPtr<IConsole> tree,
            std::shared_ptr<ViewRows> rows, Microsoft::WRL::ComPtr<IExtendControlbar> controlbar);

    // The view's own control-bar interface, null when the component data is the caller.
    IExtendControlbar* controlbar() const noexcept { return m_controlbar.Get(); }

    // --- The result pane of a view. A call through the component data has none: E_UNEXPECTED.

    // Whether the caller is a view whose result pane is this node's.
    bool shows(const CSnapInItem& node) const noexcept;
    // Appends a left-aligned column at that position; the width is in pixels.
    void insertColumn(int position, const wchar_t* title, int width);
    // Clicks on column headers no longer sort.
    void switchSortingOff() { modifyViewStyle(MMC_NOSORTHEADER, {}); }
    // The same, and several rows can be selected, where the node's GetResultViewType asked for it too.
    void switchSortingOffAndMultiSelectionOn() { modifyViewStyle(MMC_NOSORTHEADER, MMC_SINGLESEL); }
    void insertRow(CSnapInItem& item);
    // Gives the first row the focus and selects it. Does nothing where there is no row.
    void selectFirstRow();
    // Has the console ask for the row's texts again. Does nothing in a view that does not show it.
    void updateRow(CSnapInItem& item);
    // Removes every row that was inserted; the window is not redrawn meanwhile.
    void clearRows();

    // Has the node list its rows anew: at once, or, while refreshes are held, when they are released, once for each
    // node. They are held while an event is told to several selected rows, so that deleting a thousand rows lists
    // the rest once.
    void refreshResultList(CSnapInItem& node);
    void holdRefreshes() noexcept { m_holdsRefreshes = true; }
    void releaseRefreshes();

    // Enables a verb for what is selected now. False when the console has no verbs for this caller.
    bool enableVerb(MMC_CONSOLE_VERB verb);

    // --- The tree

    HRESULT selectScopeItem(HSCOPEITEM item);
    // Selects the node again and has it list its rows anew, once: a console that shows the node at once has it list
    // them by that.
    void selectAndRefresh(CSnapInItem& node);
    Microsoft::WRL::ComPtr<IConsoleNameSpace> nameSpace();
    // Has the console ask for the node's name and pictures, and tells it how many children there are. Does nothing for
    // a node that is not in the tree.
    void updateScopeItem(CSnapInItem& node);
    // Takes the node, and all that is below it, out of the tree. Does nothing for a node that is not there.
    void removeScopeItem(CSnapInItem& node);

    // Tells every view that this node has changed. A view that cannot be told keeps what it shows: the change itself
    // has happened by then, so nothing is thrown.
    void updateAllViews(CSnapInItem& item, DATA_OBJECT_TYPES type);

    // The same for every view but the caller's, which has the change already.
    void updateOtherViews(CSnapInItem& item, DATA_OBJECT_TYPES type);

  private:
    template <class Interface>
    Microsoft::WRL::ComPtr<Interface> query();
    IResultData& results();
    void modifyViewStyle(MMC_RESULT_VIEW_STYLE add, MMC_RESULT_VIEW_STYLE remove);
    ViewRows& rows();

    Microsoft::WRL::ComPtr<IConsole> m_console;
    Microsoft::WRL::ComPtr<IConsole> m_tree;
    std::shared_ptr<ViewRows> m_rows;
    Microsoft::WRL::ComPtr<IExtendControlbar> m_controlbar;
    // Asked for once, however many rows go through it.
    Microsoft::WRL::ComPtr<IResultData> m_results;
    bool m_holdsRefreshes = false;
    std::vector<Core::SmartPtr<CSnapInItem>> m_heldRefreshes;
};

} // namespace TMgmt
