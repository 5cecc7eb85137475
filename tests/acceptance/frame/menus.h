#pragma once

#include "frame/doubles/MenuDouble.h"

// The context menus that the plug-in makes in the hands of the test, with every place allowed.
namespace Acceptance
{

// An item as all of the plug-in's are: at the top, enabled, without a text for the status bar.
MenuDouble::Item topItem(const wchar_t* text, long command);

// Of the node with that path, and of a row of its list.
std::vector<MenuDouble::Item> menuOfNode(const std::wstring& path);
std::vector<MenuDouble::Item> menuOfRow(const std::wstring& path, std::size_t row);

} // namespace Acceptance
