#include "HostTest.h"

#include "console/host/AboutInformation.h"
#include "console/host/Registration.h"

#include <algorithm>

using namespace Console;

namespace
{

class LoadingTest : public HostTest
{
};

constexpr CLSID unknownClass = {0x6B1F4C1E, 0x2D0A, 0x4C50, {0x9E, 0x1B, 0x7A, 0x40, 0xC7, 0xD0, 0xE0, 0xFF}};

// Registers a class whose library is that file, for as long as it lives.
class FakeServer
{
  public:
    explicit FakeServer(const wchar_t* library)
    {
        RegSetKeyValueW(HKEY_CLASSES_ROOT, key, nullptr, REG_SZ, library,
                        static_cast<DWORD>((wcslen(library) + 1) * sizeof(wchar_t)));
    }
    FakeServer(const FakeServer&) = delete;
    FakeServer& operator=(const FakeServer&) = delete;
    ~FakeServer() { RegDeleteTreeW(HKEY_CLASSES_ROOT, L"CLSID\\{6B1F4C1E-2D0A-4C50-9E1B-7A40C7D0E0FF}"); }

  private:
    static constexpr wchar_t key[] = L"CLSID\\{6B1F4C1E-2D0A-4C50-9E1B-7A40C7D0E0FF}\\InprocServer32";
};

} // namespace

TEST_F(LoadingTest, listsRegisteredSnapIns)
{
    const auto all = registeredSnapIns();
    const auto found =
        std::find_if(all.begin(), all.end(), [](const auto& each) { return each.clsid == Foreign::snapInClass; });
    ASSERT_NE(found, all.end());
    EXPECT_EQ(found->name, L"Foreign");
    EXPECT_TRUE(found->standAlone);
    ASSERT_TRUE(found->about.has_value());
    EXPECT_EQ(*found->about, Foreign::aboutClass);
    EXPECT_FALSE(findSnapIn(unknownClass).has_value());
}

TEST_F(LoadingTest, showsTheStaticNodeBeforeLoading)
{
    EXPECT_EQ(tree().roots(), std::vector{root()});
    EXPECT_EQ(tree().text(root()), L"Foreign");
    EXPECT_EQ(snapIn->state(), SnapIn::State::notLoaded);
    EXPECT_TRUE(tree().hasExpandMark(root()));
    EXPECT_EQ(recorder.calls.size(), 0u);
}

TEST_F(LoadingTest, namesTheStaticNodeAfterItsDataObjectOnceLoaded)
{
    ASSERT_TRUE(snapIn->load());
    EXPECT_EQ(tree().text(root()), L"Foreign root");
    EXPECT_EQ(snapIn->state(), SnapIn::State::ready);
    EXPECT_TRUE(snapIn->problem().empty());
}

TEST_F(LoadingTest, giveTheStaticNodeTheAboutImages)
{
    // 0 and 1 are the console's own folders.
    EXPECT_GT(tree().image(root()), 1);
    EXPECT_GT(ImageList_GetImageCount(tree().images()), 2);
}

TEST_F(LoadingTest, copiesTheAboutInformation)
{
    std::wstring problem = L"unset";
    const AboutInformation about = readAboutInformation(Foreign::aboutClass, &problem);
    EXPECT_EQ(problem, L"");
    EXPECT_EQ(about.description, L"A snap-in of nobody's product");
    EXPECT_EQ(about.provider, L"Nobody");
    EXPECT_EQ(about.version, L"7.5");
    ICONINFO icon{};
    EXPECT_TRUE(GetIconInfo(about.icon.get(), &icon)) << "the snap-in's own icon is destroyed by now";
    DeleteObject(icon.hbmColor);
    DeleteObject(icon.hbmMask);
    BITMAP bitmap{};
    EXPECT_NE(GetObjectW(about.smallFolder.get(), sizeof bitmap, &bitmap), 0);
    EXPECT_EQ(bitmap.bmWidth, 16);
    EXPECT_EQ(about.mask, RGB(1, 2, 3));
    EXPECT_EQ(settings.liveObjects, 0);
}

TEST_F(LoadingTest, saysThatAClassIsNotRegistered)
{
    SnapIn& missing = host->addSnapIn(unknownClass);
    EXPECT_FALSE(missing.load());
    EXPECT_EQ(missing.state(), SnapIn::State::failed);
    EXPECT_NE(missing.problem().find(L"{6B1F4C1E-2D0A-4C50-9E1B-7A40C7D0E0FF} is not registered"), std::wstring::npos);
    view->selectNode(missing.root());
    EXPECT_EQ(view->pane(), View::Pane::message);
    EXPECT_EQ(view->message(), missing.problem());
}

TEST_F(LoadingTest, saysThatALibraryIsMissing)
{
    const FakeServer server(L"C:\\nowhere\\Missing.dll");
    SnapIn& missing = host->addSnapIn(unknownClass);
    EXPECT_FALSE(missing.load());
    EXPECT_NE(missing.problem().find(L"C:\\nowhere\\Missing.dll is missing"), std::wstring::npos);
}

TEST_F(LoadingTest, saysThatALibraryIsDamaged)
{
    const FakeServer server(L"C:\\windows\\system.ini");
    EXPECT_NE(inspectServer(unknownClass).problem.find(L"is damaged"), std::wstring::npos);
}

TEST_F(LoadingTest, saysWithWhichCodeCreationFailed)
{
    // A sound library, but without that class.
    const FakeServer server(L"ole32.dll");
    SnapIn& wrong = host->addSnapIn(unknownClass);
    EXPECT_FALSE(wrong.load());
    EXPECT_NE(wrong.problem().find(L"ole32.dll did not create it ("), std::wstring::npos);
}

TEST_F(LoadingTest, saysThatASnapInDidNotInitialise)
{
    settings.misdeed = Foreign::Misdeed::failInitialize;
    view->selectNode(root());
    EXPECT_EQ(snapIn->state(), SnapIn::State::failed);
    EXPECT_NE(snapIn->problem().find(L"E_ACCESSDENIED"), std::wstring::npos);
    EXPECT_EQ(view->pane(), View::Pane::message);
    EXPECT_EQ(settings.liveObjects, 0) << "it is let go of at once";
    EXPECT_EQ(recorder.count(L"IComponentData::Destroy"), 0);
    EXPECT_EQ(recorder.count(L"IComponentData::QueryDataObject"), 0);
}

TEST_F(LoadingTest, twoInstancesAreTwoObjectsAndDoNotTakeEachOthersHandles)
{
    SnapIn& second = host->addSnapIn(Foreign::snapInClass);
    ASSERT_TRUE(tree().expand(root()));
    ASSERT_TRUE(tree().expand(second.root()));
    EXPECT_EQ(tree().children(root()).size(), 3u);
    EXPECT_EQ(tree().children(second.root()).size(), 3u);
    EXPECT_NE(child(0), tree().firstChild(second.root()));
    EXPECT_EQ(tree().snapIn(child(0)), snapIn);
    EXPECT_EQ(tree().snapIn(tree().firstChild(second.root())), &second);
    host->removeSnapIn(second);
    EXPECT_EQ(tree().children(root()).size(), 3u);
    EXPECT_EQ(tree().roots().size(), 1u);
}

TEST_F(LoadingTest, aDeadHandleIsNoNode)
{
    tree().expand(root());
    const NodeId gone = child(0);
    stop();
    start(Strictness::tolerant);
    EXPECT_FALSE(tree().contains(static_cast<NodeId>(static_cast<LONG_PTR>(gone) + 1)));
    EXPECT_FALSE(tree().contains(static_cast<NodeId>(0x12345678)));
    EXPECT_GT(static_cast<LONG_PTR>(root()), LONG_PTR{0xFFFFFFFF});
}
