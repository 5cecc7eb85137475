#include "frame/BareSnapIn.h"
#include "frame/nodeData.h"
#include "kit/ConsoleTest.h"
#include "kit/ImportPatch.h"

#include <array>

using Microsoft::WRL::ComPtr;

namespace Acceptance
{
namespace
{

using Loading = ConsoleTest;

TEST_F(Loading, initializeRefusesNoConsole)
{
    BareSnapIn snapIn(false);
    EXPECT_EQ(E_POINTER, snapIn.data->Initialize(nullptr));
}

TEST_F(Loading, initializeFailsAsTheQueryForTheConsoleDoes)
{
    for (const HRESULT answer : {E_NOINTERFACE, E_ACCESSDENIED})
    {
        BareSnapIn snapIn(false);
        snapIn.console.consoleAnswer = answer;
        EXPECT_EQ(answer, snapIn.data->Initialize(&snapIn.console));
        EXPECT_TRUE(snapIn.console.images.strips.empty());
    }
}

TEST_F(Loading, initializeIsUnexpectedWithoutAScopeImageList)
{
    BareSnapIn snapIn(false);
    snapIn.console.imageListAnswer = E_ACCESSDENIED;
    EXPECT_EQ(E_UNEXPECTED, snapIn.data->Initialize(&snapIn.console));
}

TEST_F(Loading, initializePassesOnThatTheStripIsRefused)
{
    BareSnapIn snapIn(false);
    snapIn.console.images.answer = E_OUTOFMEMORY;
    EXPECT_EQ(E_OUTOFMEMORY, snapIn.data->Initialize(&snapIn.console));
}

LPCWSTR missingBitmap;

HBITMAP WINAPI loadBitmap(HINSTANCE module, LPCWSTR name)
{
    return name == missingBitmap ? nullptr : LoadBitmapW(module, name);
}

TEST_F(Loading, initializeFailsWithoutEitherStrip)
{
    for (const int resource : {203, 204})
    {
        missingBitmap = MAKEINTRESOURCEW(resource);
        BareSnapIn snapIn(false);
        const ImportPatch patch("LoadBitmapW", loadBitmap);
        EXPECT_EQ(E_FAIL, snapIn.data->Initialize(&snapIn.console));
        EXPECT_TRUE(snapIn.console.images.strips.empty());
    }
}

TEST_F(Loading, afterAFailedInitializeNoConsoleIsKept)
{
    BareSnapIn snapIn(false);
    snapIn.console.imageListAnswer = E_FAIL;
    snapIn.data->Initialize(&snapIn.console);
    EXPECT_EQ(0, snapIn.console.references());
}

TEST_F(Loading, initializeCanBeRepeatedAfterAFailure)
{
    BareSnapIn snapIn(false);
    snapIn.console.imageListAnswer = E_FAIL;
    ASSERT_EQ(E_UNEXPECTED, snapIn.data->Initialize(&snapIn.console));
    snapIn.console.imageListAnswer = S_OK;
    EXPECT_EQ(S_OK, snapIn.data->Initialize(&snapIn.console));
}

void expectNodeImages(const ImageListDouble& images)
{
    ASSERT_EQ(1u, images.strips.size());
    const ImageListDouble::Strip& strip = images.strips.front();
    EXPECT_EQ(24 * 16, strip.smallImages.bmWidth);
    EXPECT_EQ(16, strip.smallImages.bmHeight);
    EXPECT_EQ(24 * 32, strip.largeImages.bmWidth);
    EXPECT_EQ(32, strip.largeImages.bmHeight);
    EXPECT_EQ(0, strip.start);
    EXPECT_EQ(RGB(0, 128, 128), strip.mask);
}

TEST_F(Loading, initializeGivesTheTreeItsImages)
{
    BareSnapIn snapIn;
    expectNodeImages(snapIn.console.images);
    EXPECT_EQ(0, snapIn.console.images.references()) << "the list is kept";
}

TEST_F(Loading, everyKindOfNodeGivesAResultPaneTheSameImages)
{
    BareSnapIn snapIn;
    const auto view = snapIn.makeView();
    for (const wchar_t* const path : {L"", L"About KV Tessaro", L"Engine Settings\\AFP Encoder", L"Log"})
    {
        ImageListDouble images;
        EXPECT_EQ(S_OK, view->component->Notify(snapIn.object(path).Get(), MMCN_ADD_IMAGES,
                                                reinterpret_cast<LPARAM>(&images), BareSnapIn::rootHandle));
        expectNodeImages(images);
    }
}

TEST_F(Loading, addImagesWithoutAListIsRefused)
{
    BareSnapIn snapIn;
    const auto view = snapIn.makeView();
    EXPECT_EQ(E_POINTER, view->component->Notify(snapIn.object().Get(), MMCN_ADD_IMAGES, 0, 0));
}

TEST_F(Loading, theInterfacesOfBothComponents)
{
    BareSnapIn snapIn;
    const auto view = snapIn.makeView();
    ComPtr<IUnknown> found;
    EXPECT_EQ(S_OK, snapIn.data->QueryInterface(__uuidof(IExtendContextMenu), &found));
    EXPECT_EQ(S_OK, view->component->QueryInterface(__uuidof(IExtendContextMenu), &found));
    EXPECT_EQ(S_OK, view->component->QueryInterface(__uuidof(IExtendControlbar), &found));
    // The console asks a control bar of views only, and would demand more of what offers these.
    EXPECT_EQ(E_NOINTERFACE, snapIn.data->QueryInterface(__uuidof(IExtendControlbar), &found));
    EXPECT_EQ(E_NOINTERFACE, snapIn.data->QueryInterface(__uuidof(IExtendPropertySheet2), &found));
    EXPECT_EQ(E_NOINTERFACE, view->component->QueryInterface(__uuidof(IComponent2), &found));
    EXPECT_EQ(nullptr, found.Get());
}

TEST_F(Loading, oneObjectHasOneIdentity)
{
    BareSnapIn snapIn;
    const auto view = snapIn.makeView();
    for (IUnknown* const object : std::initializer_list<IUnknown*>{snapIn.data.Get(), view->component.Get()})
    {
        ComPtr<IUnknown> direct;
        ComPtr<IExtendContextMenu> menus;
        ComPtr<IUnknown> around;
        ASSERT_EQ(S_OK, object->QueryInterface(IID_PPV_ARGS(direct.GetAddressOf())));
        ASSERT_EQ(S_OK, object->QueryInterface(IID_PPV_ARGS(menus.GetAddressOf())));
        ASSERT_EQ(S_OK, menus.As(&around));
        EXPECT_EQ(direct.Get(), around.Get());
    }
}

TEST_F(Loading, aViewKeepsItsSnapInAlive)
{
    BareSnapIn snapIn;
    auto view = snapIn.makeView();
    snapIn.data->Destroy();
    snapIn.data.Reset();
    RESULTDATAITEM root{};
    root.mask = RDI_STR;
    EXPECT_EQ(S_OK, view->component->GetDisplayInfo(&root));
    EXPECT_STREQ(L"KV Tessaro 2010", root.str);
}

TEST_F(Loading, destroyLetsGoOfTheConsole)
{
    BareSnapIn snapIn;
    auto view = snapIn.makeView();
    EXPECT_NE(0, view->console.references());
    EXPECT_EQ(S_OK, view->component->Destroy(0));
    EXPECT_EQ(0, view->console.references());
    EXPECT_NE(0, snapIn.console.references());
    EXPECT_EQ(S_OK, snapIn.data->Destroy());
    EXPECT_EQ(0, snapIn.console.references());
}

TEST_F(Loading, eachInstanceHasATreeOfItsOwn)
{
    BareSnapIn first;
    BareSnapIn second;
    EXPECT_NE(first.node(L"Log").lParam, second.node(L"Log").lParam);
    EXPECT_EQ(S_FALSE, first.data->CompareObjects(first.object(L"Log").Get(), second.object(L"Log").Get()));
}

// The names are found only once somebody has registered them: what is registered before the library is loaded cannot
// be told apart, so the numbers of names that nobody uses are looked at.
TEST_F(Loading, theClipboardFormatsAreRegistered)
{
    BareSnapIn snapIn;
    const UINT latest = RegisterClipboardFormatW(L"a format that the test has just made up");
    for (const wchar_t* const name : {L"CCF_NODETYPE", L"CCF_SZNODETYPE", L"CCF_DISPLAY_NAME", L"CCF_SNAPIN_CLASSID",
                                      L"CCF_GETOBJECTDATA", L"CCF_MMC_MULTISELECT_DATAOBJECT"})
    {
        bool registered = false;
        for (UINT format = 0xC000; format < latest && !registered; ++format)
        {
            std::array<wchar_t, 64> found{};
            registered = GetClipboardFormatNameW(format, found.data(), static_cast<int>(found.size())) > 0 &&
                         std::wstring(found.data()) == name;
        }
        EXPECT_TRUE(registered) << testing::PrintToString(std::wstring(name));
    }
}

} // namespace
} // namespace Acceptance
