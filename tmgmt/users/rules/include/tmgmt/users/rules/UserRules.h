#pragma once

#include "brimlow/tessaro/User.h"

namespace TMgmt
{

// The rules of the two dialogs of a user. Each tells what is wrong, null when nothing is. Administrators and their
// notes know these sentences. Kept as is: adding and editing say the same in different words ("exits", "cannot" and
// "can not", a blank at the end).

// --- Adding

// Also for every spelling of "guest", which is the guest account's.
inline constexpr wchar_t newUsernameTaken[] = L"Username already exits.";

bool isGuestName(const Core::String& username);
// Whether an existing account, another than the one that is added, has the name in whatever case.
bool isNewUsernameTaken(const Core::String& username, const Tessaro::User& added, const Tessaro::User& existing);
const wchar_t* faultOfNewUsername(const Core::String& username) noexcept;
const wchar_t* faultOfNewPassword(const Core::String& password, const Core::String& confirmation) noexcept;

// --- Editing

inline constexpr wchar_t editedUsernameTaken[] = L"Username already exists.";

// Whether an existing account, another than the edited one, has that very name. Kept as is: another case of a name,
// and "guest", may be chosen for an account that is there.
bool isEditedUsernameTaken(const Core::String& username, const Tessaro::User& edited, const Tessaro::User& existing);
const wchar_t* faultOfEditedUsername(const Core::String& username) noexcept;
// Both empty: the password stays.
const wchar_t* faultOfChangedPassword(const Core::String& password, const Core::String& confirmation) noexcept;

} // namespace TMgmt
