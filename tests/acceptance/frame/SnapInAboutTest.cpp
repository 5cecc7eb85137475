#include "frame/systemConfiguration.h"
#include "kit/ConsoleTest.h"
#include "kit/ImportPatch.h"
#include "platform/handles.h"
#include "platform/mmc.h"

#include <wrl/client.h>

#include <optional>

using Microsoft::WRL::ComPtr;

namespace Acceptance
{
namespace
{

class SnapInAbout : public ConsoleTest
{
  protected:
    void SetUp() override
    {
        ConsoleTest::SetUp();
        ASSERT_EQ(S_OK,
                  CoCreateInstance(aboutClass, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(about.GetAddressOf())));
    }
    void TearDown() override
    {
        about.Reset();
        ConsoleTest::TearDown();
    }

    std::wstring version()
    {
        platform::TaskString text;
        EXPECT_EQ(S_OK, about->GetSnapinVersion(text.put()));
        return text ? text.get() : L"(none)";
    }

    // The size of a bitmap; both 0 when it is none.
    static std::pair<long, long> size(HBITMAP bitmap)
    {
        BITMAP described{};
        GetObjectW(bitmap, sizeof described, &described);
        return {described.bmWidth, described.bmHeight};
    }

    ComPtr<ISnapinAbout> about;
};

// What CoTaskMemAlloc gave, CoTaskMemFree takes: the allocation is found in the list of the process's own.
TEST_F(SnapInAbout, textsAreTaskMemoryOfTheCallers)
{
    ComPtr<IMalloc> memory;
    ASSERT_EQ(S_OK, CoGetMalloc(1, &memory));
    platform::TaskString description;
    platform::TaskString provider;
    platform::TaskString version;
    about->GetSnapinDescription(description.put());
    about->GetProvider(provider.put());
    about->GetSnapinVersion(version.put());
    for (const LPOLESTR text : {description.get(), provider.get(), version.get()})
    {
        ASSERT_NE(nullptr, text);
        EXPECT_LE((wcslen(text) + 1) * sizeof(wchar_t), memory->GetSize(text));
    }
}

TEST_F(SnapInAbout, describesItself)
{
    platform::TaskString text;
    EXPECT_EQ(S_OK, about->GetSnapinDescription(text.put()));
    EXPECT_STREQ(L"Manages Brimlow KV Tessaro", text.get());
}

TEST_F(SnapInAbout, namesItsMaker)
{
    platform::TaskString text;
    EXPECT_EQ(S_OK, about->GetProvider(text.put()));
    EXPECT_STREQ(L"Brimlow", text.get());
}

TEST_F(SnapInAbout, versionIsReadAfreshEachTime)
{
    EXPECT_EQ(L"Unknown Build Number: Unknown", version());
    SystemConfiguration::write(SystemConfiguration::complete);
    EXPECT_EQ(L"10.2.7 Build Number: 4711", version());
    SystemConfiguration::write("    <add key=\"ProductVersion\" value=\"11\"/>\r\n");
    EXPECT_EQ(L"11 Build Number: ", version());
    ServerFiles::write(SystemConfiguration::file(), "<broken");
    EXPECT_EQ(L"Unknown Build Number: Unknown", version());
}

TEST_F(SnapInAbout, versionMayBeLong)
{
    const std::string longText(5000, 'v');
    SystemConfiguration::write("    <add key=\"ProductVersion\" value=\"" + longText + "\"/>\r\n");
    EXPECT_EQ(std::wstring(5000, L'v') + L" Build Number: ", version());
}

TEST_F(SnapInAbout, iconAndBitmapsAreValidUntilItIsReleased)
{
    HICON icon = nullptr;
    HBITMAP bitmaps[3]{};
    COLORREF mask = 0;
    ASSERT_EQ(S_OK, about->GetSnapinImage(&icon));
    ASSERT_EQ(S_OK, about->GetStaticFolderImage(&bitmaps[0], &bitmaps[1], &bitmaps[2], &mask));
    EXPECT_EQ(RGB(0, 128, 128), mask);
    EXPECT_EQ((std::pair<long, long>{16, 16}), size(bitmaps[0]));
    EXPECT_EQ((std::pair<long, long>{16, 16}), size(bitmaps[1]));
    EXPECT_EQ((std::pair<long, long>{32, 32}), size(bitmaps[2]));
    EXPECT_NE(bitmaps[0], bitmaps[1]) << "a console may free each";
    ICONINFO information{};
    EXPECT_TRUE(GetIconInfo(icon, &information));
    const platform::Bitmap colour(information.hbmColor);
    const platform::Bitmap maskBitmap(information.hbmMask);

    about.Reset();
    for (const HBITMAP bitmap : bitmaps)
    {
        EXPECT_EQ((std::pair<long, long>{0, 0}), size(bitmap)) << "it outlives the object";
    }
    EXPECT_FALSE(GetIconInfo(icon, &information)) << "it outlives the object";
}

TEST_F(SnapInAbout, givesTheSameImagesEachTime)
{
    HICON icons[2]{};
    HBITMAP bitmaps[6]{};
    COLORREF mask = 0;
    for (const int i : {0, 1})
    {
        EXPECT_EQ(S_OK, about->GetSnapinImage(&icons[i]));
        EXPECT_EQ(S_OK, about->GetStaticFolderImage(&bitmaps[3 * i], &bitmaps[3 * i + 1], &bitmaps[3 * i + 2], &mask));
    }
    EXPECT_EQ(icons[0], icons[1]);
    for (const int i : {0, 1, 2})
    {
        EXPECT_EQ(bitmaps[i], bitmaps[3 + i]);
    }
}

TEST_F(SnapInAbout, refusesNullPointers)
{
    HBITMAP bitmap = nullptr;
    COLORREF mask = 0;
    EXPECT_EQ(E_POINTER, about->GetSnapinDescription(nullptr));
    EXPECT_EQ(E_POINTER, about->GetProvider(nullptr));
    EXPECT_EQ(E_POINTER, about->GetSnapinVersion(nullptr));
    EXPECT_EQ(E_POINTER, about->GetSnapinImage(nullptr));
    EXPECT_EQ(E_POINTER, about->GetStaticFolderImage(nullptr, &bitmap, &bitmap, &mask));
    EXPECT_EQ(E_POINTER, about->GetStaticFolderImage(&bitmap, nullptr, &bitmap, &mask));
    EXPECT_EQ(E_POINTER, about->GetStaticFolderImage(&bitmap, &bitmap, nullptr, &mask));
    EXPECT_EQ(E_POINTER, about->GetStaticFolderImage(&bitmap, &bitmap, &bitmap, nullptr));
}

void* noMemory()
{
    return nullptr;
}

TEST_F(SnapInAbout, isOutOfMemoryWhereThereIsNoTaskMemory)
{
    const ImportPatch patch("CoTaskMemAlloc", noMemory);
    wchar_t former[] = L"former";
    for (const auto operation :
         {&ISnapinAbout::GetSnapinDescription, &ISnapinAbout::GetProvider, &ISnapinAbout::GetSnapinVersion})
    {
        LPOLESTR text = former;
        EXPECT_EQ(E_OUTOFMEMORY, (about.Get()->*operation)(&text));
        EXPECT_EQ(nullptr, text);
    }
}

int nothing()
{
    return 0;
}

TEST_F(SnapInAbout, failsWhereItsTextsAndImagesAreMissing)
{
    const ImportPatch texts("LoadStringW", nothing);
    const ImportPatch bitmaps("LoadBitmapW", nothing);
    const ImportPatch icons("LoadImageW", nothing);
    LPOLESTR text = nullptr;
    HICON icon = nullptr;
    HBITMAP bitmap = nullptr;
    COLORREF mask = 0;
    EXPECT_EQ(E_FAIL, about->GetSnapinDescription(&text));
    EXPECT_EQ(E_FAIL, about->GetProvider(&text));
    EXPECT_EQ(nullptr, text);
    EXPECT_EQ(E_FAIL, about->GetSnapinImage(&icon));
    EXPECT_EQ(E_FAIL, about->GetStaticFolderImage(&bitmap, &bitmap, &bitmap, &mask));
}

TEST_F(SnapInAbout, isOnlyItself)
{
    ComPtr<IUnknown> other;
    EXPECT_EQ(E_NOINTERFACE, about->QueryInterface(__uuidof(IComponentData), &other));
    EXPECT_EQ(E_POINTER, about->QueryInterface(__uuidof(ISnapinAbout), nullptr));
}

} // namespace
} // namespace Acceptance
