#pragma once

#include "brimlow/system/Exception.h"

namespace TMgmt
{

// The captions of what the security library cannot do: in the list, and in the wizard.
inline constexpr wchar_t certificateErrorCaption[] = L"Error";
inline constexpr wchar_t wizardErrorCaption[] = L"Import Certificate";

// Shows what the security library, or the settings file, says in a message box without an owner.
void reportFailure(const Core::Exception& exception, const wchar_t* caption) noexcept;

} // namespace TMgmt
