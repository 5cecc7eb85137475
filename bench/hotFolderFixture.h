#pragma once

#include <cstddef>

namespace Bench
{

// Puts so many hot folders, whose folders exist, into the database.
void makeHotFolders(std::size_t size);

} // namespace Bench
