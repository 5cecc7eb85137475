#pragma once

#include "brimlow/system/String.h"

#include <optional>

// The names of applications, templates, resource folders and their files. They are names on the disk, too.
namespace Tessaro
{

// Why a file or folder cannot have this name, as a sentence that has the name; nothing when it can.
std::optional<Core::String> nameRefusal(const Core::String& name);

// Returns the name. Throws Core::Exception with the sentence of nameRefusal.
const Core::String& checkedName(const Core::String& name);

// A text that two names have in common exactly when Windows takes them for the same.
Core::String nameKey(const Core::String& name);

// A new name that nothing else has, for what is on its way to its place or out of it.
Core::String newTemporaryName();
bool isTemporaryName(const Core::String& name);

} // namespace Tessaro
