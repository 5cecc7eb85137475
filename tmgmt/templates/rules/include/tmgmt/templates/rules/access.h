#pragma once

#include "brimlow/system/String.h"

#include <vector>

namespace TMgmt
{

// The entry of an application's list of users that stands for the guest account.
inline constexpr wchar_t guestEntry[] = L"Guest";

inline constexpr wchar_t usernameIsEmpty[] = L"Username can not be empty.";

// To whom access can still be granted: the guest account, then the accounts in their order, without those that are
// listed already. Case counts, as everywhere with the names of users.
std::vector<Core::String> namesToOffer(const std::vector<Core::String>& accounts,
                                       const std::vector<Core::String>& listed);

} // namespace TMgmt
