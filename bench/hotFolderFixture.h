#pragma once

#include <cstddef>

namespace Bench
{

// Puts so many hot folders, whose folders exist, into the database and nothing else into the server's files. Afterwards
// Fixtures::make("hot-folders", size) puts back what was changed.
void makeHotFolders(std::size_t size);

} // namespace Bench
