#include "tmgmt/frame/RootItem.h"
#include "tmgmt/frame/AboutKVTessaroItem.h"
#include "tmgmt/snapin/guard.h"

#include "brimlow/system/Exception.h"
#include "platform/com.h"

#include <gtest/gtest.h>

namespace
{

using Microsoft::WRL::ComPtr;
using namespace TMgmt;

// A console that has nothing but a tree, and counts what is put into it.
class TreeConsole : public ComObject<IConsole, IConsoleNameSpace>
{
  public:
    int inserted = 0;

    HRESULT STDMETHODCALLTYPE SetHeader(IHeaderCtrl*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetToolbar(IToolbar*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE QueryResultView(IUnknown**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE QueryScopeImageList(IImageList**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE QueryResultImageList(IImageList**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE UpdateAllViews(IDataObject*, LPARAM, LONG_PTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE MessageBox(LPCWSTR, LPCWSTR, UINT, int*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE QueryConsoleVerb(IConsoleVerb**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SelectScopeItem(HSCOPEITEM) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetMainWindow(HWND*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE NewWindow(HSCOPEITEM, ULONG) override { return E_NOTIMPL; }

    HRESULT STDMETHODCALLTYPE InsertItem(SCOPEDATAITEM* item) override
    {
        item->ID = ++inserted;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE DeleteItem(HSCOPEITEM, LONG) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE SetItem(SCOPEDATAITEM*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetItem(SCOPEDATAITEM*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetChildItem(HSCOPEITEM, HSCOPEITEM*, MMC_COOKIE*) override { return S_FALSE; }
    HRESULT STDMETHODCALLTYPE GetNextItem(HSCOPEITEM, HSCOPEITEM*, MMC_COOKIE*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetParentItem(HSCOPEITEM, HSCOPEITEM*, MMC_COOKIE*) override { return E_NOTIMPL; }
};

RootBranches branches()
{
    return {new AboutKVTessaroItem, new AboutKVTessaroItem, new AboutKVTessaroItem, new AboutKVTessaroItem,
            new AboutKVTessaroItem, new AboutKVTessaroItem, new AboutKVTessaroItem};
}

class RootItemTest : public testing::Test
{
  protected:
    HRESULT expand(RootBranches children)
    {
        ComPtr<IConsole> unknown(m_tree.Get());
        Console console(unknown);
        const Core::SmartPtr<RootItem> root(new RootItem(std::move(children)));
        return root->OnExpand(true, 1, console);
    }

    ComPtr<TreeConsole> m_tree = platform::takeReference(new TreeConsole);
};

TEST_F(RootItemTest, insertsItsSevenChildren)
{
    EXPECT_EQ(expand(branches()), S_OK);
    EXPECT_EQ(m_tree->inserted, 7);
}

TEST_F(RootItemTest, throwsNullPointerExceptionFromSmartPtr118ForAMissingChild)
{
    for (auto member : {&RootBranches::settings, &RootBranches::about, &RootBranches::log, &RootBranches::hotFolders,
                        &RootBranches::templates, &RootBranches::users, &RootBranches::certificates})
    {
        RootBranches children = branches();
        children.*member = nullptr;
        try
        {
            expand(children);
            ADD_FAILURE() << "nothing was thrown";
        }
        catch (const Core::NullPointerException& exception)
        {
            EXPECT_EQ(exception.getFile(), Core::String(L"SmartPtr"));
            EXPECT_EQ(exception.getLine(), 118);
        }
    }
}

} // namespace
