#include "HostTest.h"

#include <prsht.h>

using namespace Console;

namespace
{

// The sheet's window, once it is on the screen; null before.
HWND visibleSheet()
{
    HWND found = nullptr;
    EnumWindows(
        [](HWND window, LPARAM result) -> BOOL
        {
            DWORD process = 0;
            wchar_t name[16] = L"";
            GetWindowThreadProcessId(window, &process);
            GetClassNameW(window, name, 16);
            if (process == GetCurrentProcessId() && IsWindowVisible(window) && wcscmp(name, L"#32770") == 0)
            {
                *reinterpret_cast<HWND*>(result) = window;
                return FALSE;
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}

class SheetTest : public HostTest
{
  protected:
    void openSheet()
    {
        settings.propertyPages = true;
        view->selectNode(root());
        view->selectRows({3});
        view->runVerb(MMC_VERB_PROPERTIES);
        ASSERT_TRUE(pumpUntil([] { return visibleSheet() != nullptr; }));
    }
};

} // namespace

TEST_F(SheetTest, opensOnItsOwnThreadAndTellsTheSnapInOfChanges)
{
    openSheet();
    EXPECT_EQ(settings.pageThread, 1);
    const HWND sheet = visibleSheet();
    wchar_t title[64] = L"";
    GetWindowTextW(sheet, title, 64);
    EXPECT_NE(std::wstring(title).find(L"Foreign thing"), std::wstring::npos);
    PostMessageW(sheet, PSM_PRESSBUTTON, PSBTN_OK, 0);
    EXPECT_TRUE(pumpUntil([&] { return settings.propertyChange == 4711; }));
    EXPECT_TRUE(pumpUntil([] { return visibleSheet() == nullptr; }));
}

TEST_F(SheetTest, asksForTheSameObjectsSheetOnlyOnce)
{
    openSheet();
    recorder.clear();
    view->runVerb(MMC_VERB_PROPERTIES);
    EXPECT_EQ(recorder.count(L"IComponent::CompareObjects"), 1);
    EXPECT_EQ(recorder.count(L"IExtendPropertySheet::CreatePropertyPages"), 0);
    PostMessageW(visibleSheet(), PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
    EXPECT_TRUE(pumpUntil([] { return visibleSheet() == nullptr; }));
    EXPECT_EQ(settings.propertyChange, 0);
}

TEST_F(SheetTest, closesWithTheConsole)
{
    openSheet();
    stop();
    EXPECT_EQ(visibleSheet(), nullptr);
    EXPECT_EQ(settings.liveObjects, 0);
}

TEST_F(SheetTest, theSnapInCanOpenASheetItself)
{
    settings.propertyPages = true;
    view->selectNode(root());
    IPropertySheetProvider* provider = nullptr;
    ASSERT_EQ(CoCreateInstance(CLSID_NodeManager, nullptr, CLSCTX_INPROC_SERVER, __uuidof(IPropertySheetProvider),
                               reinterpret_cast<void**>(&provider)),
              S_OK);
    EXPECT_EQ(provider->CreatePropertySheet(L"Own sheet", TRUE, 0, nullptr, 0), S_OK);
    EXPECT_EQ(provider->AddPrimaryPages(settings.component, TRUE, nullptr, FALSE), S_OK);
    EXPECT_EQ(provider->AddExtensionPages(), S_OK);
    EXPECT_EQ(provider->Show(0, 0), S_OK);
    provider->Release();
    ASSERT_TRUE(pumpUntil([] { return visibleSheet() != nullptr; }));
    wchar_t title[64] = L"";
    GetWindowTextW(visibleSheet(), title, 64);
    EXPECT_NE(std::wstring(title).find(L"Own sheet"), std::wstring::npos);
    EXPECT_EQ(settings.pageThread, 1);
    PostMessageW(visibleSheet(), PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
    EXPECT_TRUE(pumpUntil([] { return visibleSheet() == nullptr; }));
}

TEST_F(SheetTest, theProviderIsThereByItsClassId)
{
    IPropertySheetProvider* provider = nullptr;
    ASSERT_EQ(CoCreateInstance(CLSID_NodeManager, nullptr, CLSCTX_INPROC_SERVER, __uuidof(IPropertySheetProvider),
                               reinterpret_cast<void**>(&provider)),
              S_OK);
    EXPECT_EQ(provider->CreatePropertySheet(L"Title", TRUE, 0, nullptr, 0), S_OK);
    EXPECT_EQ(provider->Show(-1, 0), S_OK) << "thrown away";
    EXPECT_EQ(provider->Show(0, 0), E_UNEXPECTED) << "none begun";
    EXPECT_EQ(provider->FindPropertySheet(0, nullptr, nullptr), S_FALSE);
    provider->Release();
}
