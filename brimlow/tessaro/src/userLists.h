#pragma once

#include "brimlow/system/String.h"

#include <vector>

namespace Tessaro
{

using UserList = std::vector<Core::String>;

// What becomes of a stored list when somebody who got it as former has made changed of it: changed, to the letter, when
// nobody else changed the list meanwhile. Else what was taken out is taken out, and what came goes behind the others.
UserList mergedUsers(const UserList& stored, const UserList& former, const UserList& changed);

} // namespace Tessaro
