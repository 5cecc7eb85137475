#pragma once

#include <cstddef>

namespace Bench
{

inline constexpr wchar_t templatesNode[] = L"Server Templates";

// Puts one user and one application into the database: a template, a resource folder with a file, and the user in its
// list. Fixtures::make("users", n), ("applications", n), ("templates", n), ("folders", n), ("files", n) and
// ("access", n) make n of them, all copies of the first.
void makeModelApplication();

} // namespace Bench
