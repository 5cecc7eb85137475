#include "frame/BareSnapIn.h"
#include "frame/nodeData.h"
#include "kit/ConsoleTest.h"
#include "platform/handles.h"

#include <optional>

using Microsoft::WRL::ComPtr;

namespace Acceptance
{
namespace
{

using Bytes = std::vector<unsigned char>;

struct Format
{
    const wchar_t* name;
    std::size_t size; // of the root's answer, with its terminating zero
};

constexpr Format formats[] = {
    {L"CCF_NODETYPE", 16},
    {L"CCF_SZNODETYPE", 39 * sizeof(wchar_t)},
    {L"CCF_DISPLAY_NAME", 16 * sizeof(wchar_t)},
    {L"CCF_SNAPIN_CLASSID", 16},
};

class DataObject : public ConsoleTest
{
  protected:
    void TearDown() override
    {
        object.Reset();
        m_snapIn.reset();
        ConsoleTest::TearDown();
    }

  private:
    std::optional<BareSnapIn> m_snapIn{std::in_place};

  protected:
    BareSnapIn& snapIn = *m_snapIn;
    ComPtr<IDataObject> object = snapIn.object();
};

TEST_F(DataObject, answersIntoMemoryOfJustTheSize)
{
    for (const Format& format : formats)
    {
        Bytes bytes;
        EXPECT_EQ(S_OK, dataHere(object.Get(), format.name, format.size, bytes));
    }
}

TEST_F(DataObject, textsEndWithAZero)
{
    for (const Format& format : {formats[1], formats[2]})
    {
        Bytes bytes;
        dataHere(object.Get(), format.name, format.size, bytes);
        EXPECT_EQ(Bytes(2, 0), Bytes(bytes.end() - 2, bytes.end()));
        EXPECT_NE(Bytes(2, 0), Bytes(bytes.end() - 4, bytes.end() - 2));
    }
}

TEST_F(DataObject, leavesWhatIsBehindItsAnswer)
{
    for (const Format& format : formats)
    {
        Bytes bytes;
        EXPECT_EQ(S_OK, dataHere(object.Get(), format.name, format.size + 32, bytes));
        EXPECT_EQ(Bytes(32, 0xEE), Bytes(bytes.end() - 32, bytes.end()));
    }
}

TEST_F(DataObject, writesNothingIntoMemoryThatIsTooSmall)
{
    for (const Format& format : formats)
    {
        for (const std::size_t size : {format.size - 1, format.size - 2, std::size_t(1)})
        {
            Bytes bytes;
            EXPECT_EQ(STG_E_MEDIUMFULL, dataHere(object.Get(), format.name, size, bytes));
            EXPECT_EQ(Bytes(size, 0xEE), bytes);
        }
    }
}

TEST_F(DataObject, refusesEveryOtherFormat)
{
    for (const wchar_t* const name :
         {L"CCF_GETOBJECTDATA", L"CCF_MMC_MULTISELECT_DATAOBJECT", L"CCF_OBJECT_TYPES_IN_MULTI_SELECT",
          L"CCF_COLUMN_SET_ID", L"CCF_NODEID2", L"CCF_SNAPIN_PRELOADS", L"no such format"})
    {
        Bytes bytes;
        EXPECT_EQ(DV_E_CLIPFORMAT, dataHere(object.Get(), name, 512, bytes));
        EXPECT_EQ(Bytes(512, 0xEE), bytes);
        FORMATETC format = formatOf(name);
        STGMEDIUM medium{};
        EXPECT_EQ(DV_E_CLIPFORMAT, object->GetData(&format, &medium));
        EXPECT_EQ(nullptr, medium.hGlobal);
        EXPECT_EQ(DV_E_CLIPFORMAT, object->QueryGetData(&format));
    }
}

TEST_F(DataObject, refusesEveryOtherMedium)
{
    FORMATETC format = formatOf(L"CCF_NODETYPE");
    format.tymed = TYMED_ISTREAM;
    STGMEDIUM medium{};
    EXPECT_EQ(DV_E_TYMED, object->GetData(&format, &medium));
    EXPECT_EQ(DV_E_TYMED, object->GetDataHere(&format, &medium));
    EXPECT_EQ(DV_E_TYMED, object->QueryGetData(&format));

    format.tymed = TYMED_HGLOBAL;
    medium.tymed = TYMED_ISTREAM;
    EXPECT_EQ(DV_E_TYMED, object->GetDataHere(&format, &medium));
    medium = {};
    medium.tymed = TYMED_HGLOBAL;
    EXPECT_EQ(DV_E_TYMED, object->GetDataHere(&format, &medium)) << "no memory";
}

TEST_F(DataObject, bringsItsOwnMemoryWhenAskedTo)
{
    for (const Format& format : formats)
    {
        FORMATETC wanted = formatOf(format.name);
        platform::StorageMedium medium;
        ASSERT_EQ(S_OK, object->GetData(&wanted, medium.get()));
        EXPECT_EQ(static_cast<DWORD>(TYMED_HGLOBAL), medium->tymed);
        EXPECT_EQ(nullptr, medium->pUnkForRelease);
        EXPECT_LE(format.size, GlobalSize(medium->hGlobal));
        EXPECT_EQ(S_OK, object->QueryGetData(&wanted));
    }
}

TEST_F(DataObject, refusesNullPointers)
{
    FORMATETC format = formatOf(L"CCF_NODETYPE");
    STGMEDIUM medium{};
    EXPECT_EQ(E_POINTER, object->GetData(nullptr, &medium));
    EXPECT_EQ(E_POINTER, object->GetData(&format, nullptr));
    EXPECT_EQ(E_POINTER, object->GetDataHere(nullptr, &medium));
    EXPECT_EQ(E_POINTER, object->GetDataHere(&format, nullptr));
    EXPECT_EQ(E_POINTER, object->QueryGetData(nullptr));
    EXPECT_EQ(E_POINTER, object->GetCanonicalFormatEtc(nullptr, &format));
    EXPECT_EQ(E_POINTER, object->GetCanonicalFormatEtc(&format, nullptr));
    EXPECT_EQ(E_POINTER, object->EnumFormatEtc(DATADIR_GET, nullptr));
    EXPECT_EQ(E_POINTER, object->EnumDAdvise(nullptr));
    EXPECT_EQ(E_POINTER, object->QueryInterface(IID_IUnknown, nullptr));
}

TEST_F(DataObject, cannotBeChangedOrWatched)
{
    FORMATETC format = formatOf(L"CCF_NODETYPE");
    FORMATETC same{};
    STGMEDIUM medium{};
    DWORD connection = 0;
    IEnumFORMATETC* enumFormats = nullptr;
    IEnumSTATDATA* enumSinks = nullptr;
    EXPECT_EQ(E_NOTIMPL, object->SetData(&format, &medium, FALSE));
    EXPECT_EQ(E_NOTIMPL, object->EnumFormatEtc(DATADIR_GET, &enumFormats));
    EXPECT_EQ(OLE_E_ADVISENOTSUPPORTED, object->DAdvise(&format, 0, nullptr, &connection));
    EXPECT_EQ(OLE_E_ADVISENOTSUPPORTED, object->DUnadvise(1));
    EXPECT_EQ(OLE_E_ADVISENOTSUPPORTED, object->EnumDAdvise(&enumSinks));
    EXPECT_EQ(DATA_S_SAMEFORMATETC, object->GetCanonicalFormatEtc(&format, &same));
    EXPECT_EQ(format.cfFormat, same.cfFormat);
}

TEST_F(DataObject, twoOfOneNodeAreTheSameAndOfTwoNodesAreNot)
{
    const auto view = snapIn.makeView();
    const auto log = snapIn.object(L"Log");
    EXPECT_EQ(S_OK, snapIn.data->CompareObjects(object.Get(), snapIn.object(0, CCT_RESULT).Get()));
    EXPECT_EQ(S_FALSE, snapIn.data->CompareObjects(object.Get(), log.Get()));
    EXPECT_EQ(S_OK, view->component->CompareObjects(log.Get(), snapIn.object(L"Log").Get()));
    EXPECT_EQ(S_FALSE, view->component->CompareObjects(log.Get(), object.Get()));
}

TEST_F(DataObject, standsForItsNodeAfterTheSnapInIsGone)
{
    auto log = snapIn.object(L"Log");
    snapIn.data->Destroy();
    snapIn.data.Reset();
    EXPECT_EQ(L"Log", displayNameOf(log.Get()));
    EXPECT_EQ(S_FALSE, canUnloadNow());
    log.Reset();
    object.Reset();
    EXPECT_EQ(S_OK, canUnloadNow());
}

} // namespace
} // namespace Acceptance
