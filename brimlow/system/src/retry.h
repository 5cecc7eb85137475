#pragma once

#include "brimlow/system/Exception.h"

namespace Core::IO
{

// With the pause of 100 ms between them: half a second, which is enough for a virus scanner or an indexer that looks at
// what was just written.
constexpr int maxAttempts = 6;

// Makes the call, which returns a SystemError, and makes it again after a pause where the error may pass. Returns what
// the last attempt returned.
SystemError retry(const auto& call, const auto& mayPass, const auto& pause)
{
    for (int attempt = 1;; ++attempt)
    {
        const SystemError error = call();
        if (!error || !mayPass(error) || attempt == maxAttempts)
        {
            return error;
        }
        pause();
    }
}

} // namespace Core::IO
