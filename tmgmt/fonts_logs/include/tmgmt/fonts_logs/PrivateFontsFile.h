#pragma once

#include <vector>

#include "tmgmt/fonts_logs/rules/PrivateFont.h"

namespace TMgmt
{

// The server's file of private fonts, "Brimlow\Common\Config\Fonts.config" in the common application data folder. All
// of these throw Core::Exception when it cannot be read or written; a failed change leaves it as it was.

// The mappings in the order of the file; none when it is not there.
std::vector<PrivateFont> readPrivateFonts();

// Throws Core::FormatException for a text that the file cannot hold; writes nothing.
void checkPrivateFont(const PrivateFont& font);

// Replaces the file of the mapping with the same key, or adds the mapping. Makes the file when it is not there yet.
void storePrivateFont(const PrivateFont& font);

// Removes the mapping with that key, if there is one; makes the file all the same.
void deletePrivateFont(const Core::String& key);

} // namespace TMgmt
