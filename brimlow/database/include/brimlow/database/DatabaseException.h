#pragma once

#include "brimlow/system/Exception.h"

namespace Database
{

// A database cannot be used, or not for this. The message is one sentence that names the file and the reason, and the
// way out where there is one. What was to be changed is as it was.
class DatabaseException : public Core::Exception
{
  public:
    using Core::Exception::Exception;
};

} // namespace Database
