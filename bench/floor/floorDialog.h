#pragma once

namespace Bench
{

// Shows a dialog with nothing behind its controls, in the style that the system gives its own, until OK or Cancel,
// over the window that is active.
void showFloorDialog();

} // namespace Bench
