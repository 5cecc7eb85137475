#pragma once

#include <windows.h>

#include <objidl.h>

namespace TMgmt
{

// The formats in which the console asks a data object what it stands for; registered once, when the module is loaded.
struct ClipboardFormats
{
    ClipboardFormats() noexcept;

    CLIPFORMAT nodeType;
    CLIPFORMAT nodeTypeText;
    CLIPFORMAT displayName;
    CLIPFORMAT snapInClassId;
    CLIPFORMAT getObjectData;
    CLIPFORMAT multiSelectDataObject;
    // What the console asks of an object that stands for several rows.
    CLIPFORMAT objectTypesInMultiSelect;
    CLIPFORMAT multiSelectSnapIns;
};

extern const ClipboardFormats clipboardFormats;

} // namespace TMgmt
