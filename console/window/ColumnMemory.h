#pragma once

#include "console/host/View.h"

#include <optional>
#include <string>
#include <vector>

namespace Console
{

// The column widths that the user chose, by the kind of list (View::columnSet), kept from one run to the next.

// In pixels at 96 to the inch. Nothing when the user never changed them, or when the number of columns is another.
std::optional<std::vector<int>> rememberedWidths(const std::wstring& columnSet, std::size_t columns);

void rememberWidths(const std::wstring& columnSet, const std::vector<int>& widths);

// The same for what a view shows.
void applyRememberedWidths(View& view);
void rememberWidths(const View& view);

} // namespace Console
