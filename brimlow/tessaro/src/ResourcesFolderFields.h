#pragma once

#include "StoredId.h"

#include "brimlow/tessaro/ResourcesFolder.h"

#include <vector>

namespace Tessaro
{

struct ResourcesFolder::Fields
{
    StoredId id;
    StoredId application;
    Core::String path;
    std::vector<ResourceFile> files;
};

} // namespace Tessaro
