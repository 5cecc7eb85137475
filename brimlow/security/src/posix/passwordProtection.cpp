#include "passwordProtection.h"

#include <utility>

namespace Security
{

std::string protect(const Secret& password)
{
    return password.get();
}

Secret unprotect(std::string&& content)
{
    return Secret(std::move(content));
}

} // namespace Security
