#pragma once

#include <string>

#include "tmgmt/snapin/CSnapInItem.h"
#include "tmgmt/snapin/DataObject.h"
#include "tmgmt/snapin/MenuResource.h"
#include "tmgmt/snapin/itemData.h"

namespace TMgmt
{

// A node of the console's tree; it can also be a row of its parent's result pane.
struct ScopeNode
{
    const wchar_t* displayName;
    int image;
    // Whether the console draws an expand mark: only zero and nonzero differ to it.
    int childCount;
};

// A row of its parent's result pane.
struct ResultNode
{
    const wchar_t* displayName;
    int image;
};

// What every node does unless its class says otherwise. T, the node's class, has
//     static constexpr GUID nodeType       the kind of node, as the console knows it
//     static constexpr UINT menu           its context menu's resource number, 0 for none
//     static constexpr CLSID snapInClassId the class of the plug-in that it belongs to
template <class T>
class CSnapInItemImpl : public CSnapInItem
{
  public:
    HRESULT GetScopePaneInfo(SCOPEDATAITEM& item) override
    {
        if (item.mask & SDI_STR)
        {
            item.displayname = m_displayName.data();
        }
        if (item.mask & SDI_IMAGE)
        {
            item.nImage = m_scopeData.nImage;
        }
        if (item.mask & SDI_OPENIMAGE)
        {
            item.nOpenImage = m_scopeData.nOpenImage;
        }
        return S_OK;
    }

    HRESULT GetResultViewType(LPOLESTR* viewType, LONG* options) override
    {
        *viewType = nullptr;
        *options = MMC_VIEW_OPTIONS_NONE;
        return S_FALSE;
    }

    HRESULT AddMenuItems(IContextMenuCallback& menu, LONG allowed, DATA_OBJECT_TYPES) override
    {
        if constexpr (T::menu != 0)
        {
            addMenuResource(T::menu, menu, allowed);
        }
        return S_OK;
    }

    HRESULT CreatePropertyPages(IPropertySheetCallback&, LONG_PTR, DATA_OBJECT_TYPES) override { return E_NOTIMPL; }
    HRESULT QueryPagesFor(DATA_OBJECT_TYPES) override { return E_NOTIMPL; }

    SCOPEDATAITEM& GetScopeData() override { return m_scopeData; }
    RESULTDATAITEM& GetResultData() override { return m_resultData; }

    HRESULT FillData(CLIPFORMAT format, std::vector<std::byte>& data) override
    {
        return fillItemData(format, {T::nodeType, m_displayName, T::snapInClassId}, data);
    }

    void InitDataClass(SnapInDataObject& object, DATA_OBJECT_TYPES type) override
    {
        object.select({Core::SmartPtr<CSnapInItem>(this)}, type);
    }

    Microsoft::WRL::ComPtr<IDataObject> GetDataObject(DATA_OBJECT_TYPES type) override
    {
        const auto object = SnapInDataObject::create();
        InitDataClass(*object.Get(), type);
        return object;
    }

  protected:
    explicit CSnapInItemImpl(const ScopeNode& node) : CSnapInItemImpl(node.displayName, node.image)
    {
        m_scopeData.mask = SDI_STR | SDI_PARAM | SDI_CHILDREN | SDI_IMAGE | SDI_OPENIMAGE;
        m_scopeData.cChildren = node.childCount;
        m_resultData.mask = RDI_STR | RDI_IMAGE;
    }

    explicit CSnapInItemImpl(const ResultNode& node) : CSnapInItemImpl(node.displayName, node.image)
    {
        m_scopeData.mask = SDI_STR | SDI_PARAM | SDI_CHILDREN;
        m_resultData.mask = RDI_STR | RDI_IMAGE | RDI_PARAM;
    }

    const std::wstring& displayName() const noexcept { return m_displayName; }
    // A console that shows the node asks for the name again when it is told to: Console::updateScopeItem or updateRow.
    void setDisplayName(const wchar_t* name) { m_displayName = name; }

  private:
    CSnapInItemImpl(const wchar_t* displayName, int image) : m_displayName(displayName)
    {
        m_scopeData.displayname = platform::askForText();
        m_scopeData.nImage = image;
        m_scopeData.nOpenImage = image;
        m_scopeData.lParam = cookie();
        m_resultData.str = platform::askForText();
        m_resultData.nImage = image;
        m_resultData.lParam = cookie();
    }

    std::wstring m_displayName;
    SCOPEDATAITEM m_scopeData{};
    RESULTDATAITEM m_resultData{};
};

} // namespace TMgmt
