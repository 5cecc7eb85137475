#pragma once

#include "tmgmt/snapin/DataObject.h"

namespace TMgmt
{

// The live node with that cookie. Throws ComError(E_INVALIDARG) for a number that names none.
Core::SmartPtr<CSnapInItem> itemOfCookie(MMC_COOKIE cookie);

// What a data object that the console hands in stands for. A composite of the console's is opened and this plug-in's
// part of it taken. Throws ComError: E_POINTER for null and for the numbers that stand for no object, E_UNEXPECTED for
// an object of another plug-in.
Selection selectionOf(IDataObject* object);

} // namespace TMgmt
