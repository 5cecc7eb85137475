#pragma once

#include "brimlow/tessaro/ServerApplication.h"
#include "brimlow/tessaro/User.h"

#include <vector>

namespace Tessaro
{

// Everything that the database holds, in the order in which it was added.
struct Content
{
    std::vector<ServerApplication> applications;
    std::vector<User> users;
    bool guestEnabled = false;
};

} // namespace Tessaro
