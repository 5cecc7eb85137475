#pragma once

#include "brimlow/system/String.h"

namespace TMgmt
{

// The name of a user in the access lists of the applications. Both throw what the library throws; the lists that were
// not rewritten by then stay as they were.

// Puts the new name in the place of the old one, in every list. Kept as is: in a list that has the old name twice
// only the first is replaced, and a list is written back even when both names are the same.
void renameInAccessLists(const Core::String& from, const Core::String& to);

// Takes the name out of every list.
void removeFromAccessLists(const Core::String& username);

} // namespace TMgmt
