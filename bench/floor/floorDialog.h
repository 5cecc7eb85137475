#pragma once

namespace Bench
{

// Shows one of the plug-in's own dialogs, by the number of its resource and in the same style, with nothing behind its
// controls, until OK or Cancel, over the window that is active.
void showFloorDialog(int dialog);

} // namespace Bench
