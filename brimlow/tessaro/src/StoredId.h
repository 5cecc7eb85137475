#pragma once

#include "brimlow/database/RandomId.h"

#include <cstdint>

namespace Tessaro
{

// Which row something was read from. The number alone will not do: it is given away again after a removal, and another
// database has the same numbers. Row 0 is none.
struct StoredId
{
    std::int64_t row = 0;
    Database::RandomId identity{};

    bool operator==(const StoredId&) const = default;
};

} // namespace Tessaro
