#pragma once

#include "StoredId.h"

#include "brimlow/tessaro/ServerApplication.h"

#include <optional>

namespace Tessaro
{

struct ServerApplication::Fields
{
    // None before it is stored.
    StoredId id;
    Core::String path;
    XsltEngine engine = XsltEngine::Msxml;
    std::vector<Template> templates;
    std::vector<ResourcesFolder> folders;
    std::vector<Core::String> users;

    // What engine and users were before this copy changed them; none while it did not.
    std::optional<XsltEngine> formerEngine;
    std::optional<std::vector<Core::String>> formerUsers;
};

} // namespace Tessaro
