#pragma once

#include <string>
#include <vector>

namespace Acceptance
{

// Another program installs a certificate for each of these common names. They come from the authority and have the
// serial numbers 01, 02, …
void installCertificates(const std::vector<std::wstring>& names);

} // namespace Acceptance
