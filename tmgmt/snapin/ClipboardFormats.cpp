#include "tmgmt/snapin/ClipboardFormats.h"

namespace TMgmt
{
namespace
{

CLIPFORMAT registered(const wchar_t* name) noexcept
{
    return static_cast<CLIPFORMAT>(RegisterClipboardFormatW(name));
}

} // namespace

ClipboardFormats::ClipboardFormats() noexcept
    : nodeType(registered(L"CCF_NODETYPE")),
      nodeTypeText(registered(L"CCF_SZNODETYPE")),
      displayName(registered(L"CCF_DISPLAY_NAME")),
      snapInClassId(registered(L"CCF_SNAPIN_CLASSID")),
      getObjectData(registered(L"CCF_GETOBJECTDATA")),
      multiSelectDataObject(registered(L"CCF_MMC_MULTISELECT_DATAOBJECT")),
      objectTypesInMultiSelect(registered(L"CCF_OBJECT_TYPES_IN_MULTI_SELECT")),
      multiSelectSnapIns(registered(L"CCF_MULTI_SELECT_SNAPINS"))
{
}

const ClipboardFormats clipboardFormats;

} // namespace TMgmt
