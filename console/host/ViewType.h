#pragma once

#include "platform/mmc.h"

#include <string>

namespace Console
{

class Component;

// What a component wants its pane to be for a node.
struct ViewTypeAnswer
{
    long options = 0;               // MMC_VIEW_OPTIONS_…
    LPDATAOBJECT special = nullptr; // DOBJ_CUSTOMOCX, DOBJ_CUSTOMWEB; null for a list
    std::wstring message;           // for a pane that cannot be shown: one sentence
};

// Asks by IComponent2 where the component has it, else by IComponent. A failure means an ordinary list.
ViewTypeAnswer askComponentForViewType(Component& component, MMC_COOKIE cookie);

} // namespace Console
