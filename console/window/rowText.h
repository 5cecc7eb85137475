#pragma once

#include "console/host/View.h"

#include <string>

namespace Console
{

// The selected rows as text that spreadsheets and editors take: the cells of the columns that are shown, with
// tabulators between them, a line for each row. What would break the table inside a cell becomes a blank.
std::wstring selectedRowsAsText(const View& view);

} // namespace Console
