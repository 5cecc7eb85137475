#include "tmgmt/templates/rules/access.h"

#include <unordered_set>

namespace TMgmt
{

// Kept as is: an account whose name differs from a listed one in case only is offered.
std::vector<Core::String> namesToOffer(const std::vector<Core::String>& accounts,
                                       const std::vector<Core::String>& listed)
{
    const std::unordered_set<Core::String> taken(listed.begin(), listed.end());
    std::vector<Core::String> names;
    if (!taken.contains(guestEntry))
    {
        names.emplace_back(guestEntry);
    }
    for (const Core::String& account : accounts)
    {
        if (!taken.contains(account))
        {
            names.push_back(account);
        }
    }
    return names;
}

} // namespace TMgmt
