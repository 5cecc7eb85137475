#pragma once

#include "brimlow/database/Connection.h"
#include "brimlow/tessaro/ServerApplication.h"

#include <vector>

namespace Tessaro
{

class ApplicationTable
{
  public:
    static void create(Database::Connection& connection);
    static std::vector<ServerApplication> load(const Database::Connection& connection);
};

} // namespace Tessaro
