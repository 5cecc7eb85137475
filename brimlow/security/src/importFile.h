#pragma once

#include "KeyStoreFile.h"
#include "Secret.h"

#include "brimlow/system/String.h"

namespace Security
{

// Stores the certificates of a PKCS #12 file in the key store. Throws PasswordException, or Core::Exception with a
// sentence that names the file.
void importFile(const KeyStoreFile& keyStore, const Core::String& fileName, const Secret& password);

} // namespace Security
