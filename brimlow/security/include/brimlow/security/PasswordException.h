#pragma once

#include "brimlow/system/Exception.h"

namespace Security
{

// A PKCS #12 file does not open with the password that was tried. Nothing else is known to be wrong with the file, so
// that another password may help.
class PasswordException : public Core::Exception
{
  public:
    using Core::Exception::Exception;
};

} // namespace Security
