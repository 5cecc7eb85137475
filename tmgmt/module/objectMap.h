#pragma once

#include <windows.h>

#include <span>

#include "tmgmt/snapin/ClassFactory.h"

namespace TMgmt
{

// A class that this module offers: its factory's function and the registry script that enters it.
struct ObjectMapEntry
{
    CLSID classId;
    ClassFactory::Create create;
    UINT script;
};

std::span<const ObjectMapEntry> objectMap() noexcept;

} // namespace TMgmt
