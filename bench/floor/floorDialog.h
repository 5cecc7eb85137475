#pragma once

namespace Bench
{

// Shows a dialog with nothing behind its controls until OK or Cancel, over the window that is active.
void showFloorDialog();

} // namespace Bench
