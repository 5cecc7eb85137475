#pragma once

#include "console/host/View.h"

#include <vector>

namespace Console
{

// The columns that a list is shown with: the snap-in's, or one for the names when it gave none.
std::vector<Column> shownColumns(const View& view);

} // namespace Console
