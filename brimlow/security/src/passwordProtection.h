#pragma once

#include "Secret.h"

#include <string>

namespace Security
{

// The form in which the password of the key store is kept on the disk. On Windows the data-protection API encrypts it
// for this machine, so that a copy of the disk's files alone does not open the key store; elsewhere it is protected by
// the rights of its file only. Both throw Core::IOException, a sentence without the file.
std::string protect(const Secret& password);
// Wipes what it is given.
Secret unprotect(std::string&& content);

} // namespace Security
