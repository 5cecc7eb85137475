#pragma once

#include "platform/mmc.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>

namespace Hostile
{

// A class of nodes, as a console can tell it: by the node type and, where two classes share one, by the name too.
struct NodeKind
{
    const char* name;
    const wchar_t* nodeType;
    const wchar_t* displayName = nullptr;
};

// All that there are.
std::span<const NodeKind> nodeKinds();

// The index among them of the node that a data object stands for; nothing for an object that does not say.
std::optional<std::size_t> kindOf(IDataObject* object);

} // namespace Hostile
