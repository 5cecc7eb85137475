#pragma once

#include "frame/doubles/ComDouble.h"

#include <string>
#include <vector>

namespace Acceptance
{

// Remembers the menu items that it is given.
class MenuDouble final : public ComDouble<IContextMenuCallback>
{
  public:
    struct Item
    {
        std::wstring text;
        std::wstring statusText;
        long command;
        long insertionPoint;
        long flags;
        long specialFlags;

        bool operator==(const Item&) const = default;
    };

    HRESULT STDMETHODCALLTYPE AddItem(CONTEXTMENUITEM* item) override
    {
        EXPECT_NE(nullptr, item->strStatusBarText) << "some consoles do not take a null pointer";
        items.push_back({item->strName, item->strStatusBarText ? item->strStatusBarText : L"(null)", item->lCommandID,
                         item->lInsertionPointID, item->fFlags, item->fSpecialFlags});
        return S_OK;
    }

    std::vector<Item> items;
};

} // namespace Acceptance
