#pragma once

#include "fit/Control.h"

#include <string>
#include <vector>

// What makes a dialog hard to use, each fault a line that names the controls.
namespace Fit
{

using Faults = std::vector<std::wstring>;

// Controls that a screen reader has no name for, and such that it calls alike.
Faults faultsOfNames(const Controls& controls);

// Where the tabulator and arrow keys do not go the way that the eye goes: in a row to the right, in a column down.
Faults faultsOfOrder(HWND dialog, const Controls& controls);

// Letters that are underlined twice, whether seen at the same time or not, and such that lead to a control elsewhere.
Faults faultsOfMnemonics(const Controls& controls);

// Texts that are cut, as they are and when they are a third longer in another language; controls over one another or
// beyond the margin. The margin is in dialog units.
Faults faultsOfRoom(HWND dialog, const Controls& controls, int margin);

} // namespace Fit
