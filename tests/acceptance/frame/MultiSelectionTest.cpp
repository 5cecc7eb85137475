#include "frame/BareSnapIn.h"
#include "frame/doubles/DataObjectDouble.h"
#include "frame/nodeData.h"
#include "kit/ConsoleTest.h"
#include "platform/handles.h"

#include <cstring>

using Microsoft::WRL::ComPtr;

namespace Acceptance
{
namespace
{

class MultiSelection : public ConsoleTest
{
  protected:
    // The view with the rows of the log in it.
    struct Shown : BareSnapIn
    {
        Shown() { view->component->Notify(object(L"Log").Get(), MMCN_SHOW, TRUE, BareSnapIn::rootHandle); }

        void select(const std::vector<std::size_t>& rows)
        {
            view->console.results.selected.clear();
            for (const std::size_t row : rows)
            {
                view->console.results.selected.push_back(view->console.results.rows[row].lParam);
            }
        }
        HRESULT query(ComPtr<IDataObject>& object) const
        {
            return view->component->QueryDataObject(MMC_MULTI_SELECT_COOKIE, CCT_RESULT,
                                                    object.ReleaseAndGetAddressOf());
        }

        std::unique_ptr<View> view = makeView();
    };

    static std::vector<GUID> kinds(IDataObject* object)
    {
        FORMATETC format = formatOf(L"CCF_OBJECT_TYPES_IN_MULTI_SELECT");
        platform::StorageMedium medium;
        EXPECT_EQ(S_OK, object->GetData(&format, medium.get()));
        DWORD count = 0;
        const auto* const bytes = static_cast<const unsigned char*>(medium->hGlobal);
        std::memcpy(&count, bytes, sizeof count);
        std::vector<GUID> kinds(count);
        std::memcpy(kinds.data(), bytes + sizeof count, count * sizeof(GUID));
        return kinds;
    }
};

TEST_F(MultiSelection, namesTheKindsOfTheSelectedRowsOnceEach)
{
    Shown snapIn;
    ComPtr<IDataObject> object;
    snapIn.select({0, 1, 2});
    snapIn.view->console.results.selected.push_back(snapIn.node(L"About KV Tessaro").lParam);
    ASSERT_EQ(S_OK, snapIn.query(object));
    EXPECT_EQ(
        (std::vector{guid(L"{5E04C561-3019-11D3-8856-204C4F4F5020}"), guid(L"{3F7862F1-CC1A-424B-90F8-D57BC7EBE021}")}),
        kinds(object.Get()));
}

TEST_F(MultiSelection, hasNothingThatBelongsToOneNode)
{
    Shown snapIn;
    ComPtr<IDataObject> object;
    snapIn.select({0, 1});
    ASSERT_EQ(S_OK, snapIn.query(object));
    std::vector<unsigned char> bytes;
    for (const wchar_t* const format : {L"CCF_NODETYPE", L"CCF_SZNODETYPE", L"CCF_DISPLAY_NAME", L"CCF_SNAPIN_CLASSID"})
    {
        EXPECT_EQ(DV_E_CLIPFORMAT, dataHere(object.Get(), format, 512, bytes));
    }
}

TEST_F(MultiSelection, keepsTheRowsOfTheMomentItWasAskedFor)
{
    Shown snapIn;
    ComPtr<IDataObject> two;
    ComPtr<IDataObject> same;
    ComPtr<IDataObject> other;
    snapIn.select({0, 1});
    ASSERT_EQ(S_OK, snapIn.query(two));
    ASSERT_EQ(S_OK, snapIn.query(same));
    snapIn.select({0, 2});
    ASSERT_EQ(S_OK, snapIn.query(other));
    EXPECT_EQ(S_OK, snapIn.view->component->CompareObjects(two.Get(), same.Get()));
    EXPECT_EQ(S_FALSE, snapIn.view->component->CompareObjects(two.Get(), other.Get()));
}

TEST_F(MultiSelection, notificationsReachEveryRow)
{
    Shown snapIn;
    ComPtr<IDataObject> object;
    snapIn.select({0, 2});
    ASSERT_EQ(S_OK, snapIn.query(object));
    EXPECT_EQ(S_OK, snapIn.view->component->Notify(object.Get(), MMCN_VIEW_CHANGE, 0, 0));
    const auto& rows = snapIn.view->console.results.rows;
    EXPECT_EQ((std::vector{rows[0].itemID, rows[2].itemID}), snapIn.view->console.results.updated);
    EXPECT_EQ(E_NOTIMPL, snapIn.view->component->Notify(object.Get(), MMCN_DELETE, 0, 0));
}

TEST_F(MultiSelection, hasNoMenu)
{
    Shown snapIn;
    ComPtr<IDataObject> object;
    snapIn.select({0, 1});
    ASSERT_EQ(S_OK, snapIn.query(object));
    MenuDouble menu;
    long allowed = CCM_INSERTIONALLOWED_TOP;
    EXPECT_EQ(S_OK, snapIn.view->menus()->AddMenuItems(object.Get(), &menu, &allowed));
    EXPECT_TRUE(menu.items.empty());
}

TEST_F(MultiSelection, ofNothingIsUnexpected)
{
    Shown snapIn;
    ComPtr<IDataObject> object;
    EXPECT_EQ(E_UNEXPECTED, snapIn.query(object));
    EXPECT_EQ(nullptr, object.Get());
    EXPECT_EQ(E_INVALIDARG, snapIn.data->QueryDataObject(MMC_MULTI_SELECT_COOKIE, CCT_RESULT, &object));
}

TEST_F(MultiSelection, ofARowThatIsNotOursIsRefused)
{
    Shown snapIn;
    ComPtr<IDataObject> object;
    snapIn.view->console.results.selected = {12345};
    EXPECT_EQ(E_INVALIDARG, snapIn.query(object));
    EXPECT_EQ(nullptr, object.Get());
}

TEST_F(MultiSelection, ofTheConsolesIsOpenedForOurPart)
{
    Shown snapIn;
    const auto row = snapIn.view->object(snapIn.view->console.results.rows[1].lParam);
    DataObjectDouble foreign;
    DataObjectDouble composite;
    for (const std::vector<IDataObject*>& parts :
         {std::vector<IDataObject*>{row.Get()}, {&foreign, row.Get()}, {row.Get(), &foreign}})
    {
        composite.answerComposite(parts);
        EXPECT_EQ(S_OK, snapIn.view->component->CompareObjects(&composite, row.Get()));
        MenuDouble menu;
        long allowed = CCM_INSERTIONALLOWED_TOP;
        EXPECT_EQ(S_OK, snapIn.view->menus()->AddMenuItems(&composite, &menu, &allowed));
        EXPECT_EQ(1u, menu.items.size());
    }
}

TEST_F(MultiSelection, ofTheConsolesWithoutOurPartIsUnexpected)
{
    Shown snapIn;
    const auto row = snapIn.object();
    DataObjectDouble foreign;
    DataObjectDouble composite;
    const auto notify = [&] { return snapIn.view->component->Notify(&composite, MMCN_DELETE, 0, 0); };
    composite.answerComposite({});
    EXPECT_EQ(E_UNEXPECTED, notify());
    composite.answerComposite({&foreign, &foreign});
    EXPECT_EQ(E_UNEXPECTED, notify());
    composite.answerComposite({nullptr, nullptr});
    EXPECT_EQ(E_UNEXPECTED, notify()) << "no objects in it";
}

TEST_F(MultiSelection, ofTheConsolesIsReadNoFurtherThanItsMemory)
{
    Shown snapIn;
    const auto row = snapIn.object();
    DataObjectDouble foreign;
    DataObjectDouble composite;
    // More parts claimed than there are; a part cut off; a count cut off; memory of no size.
    const std::pair<DWORD, std::size_t> cases[] = {{1000, 16}, {0xFFFFFFFF, 16}, {2, 23}, {1, 15},
                                                   {1, 8},     {1, 4},           {1, 2},  {1, 1}};
    for (const auto& [count, size] : cases)
    {
        composite.answerComposite({&foreign, row.Get()}, count, size);
        EXPECT_EQ(E_UNEXPECTED, snapIn.view->component->Notify(&composite, MMCN_DELETE, 0, 0)) << count << ' ' << size;
    }
}

} // namespace
} // namespace Acceptance
