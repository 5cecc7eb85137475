#pragma once

#include <span>

#include "tmgmt/settings/PropertyItem.h"

namespace TMgmt
{

// The columns of a settings group.
enum class PropertyColumn
{
    name,
    value,
    isDefault,
    description,
    defaultValue
};

void insertPropertyColumns(Console& console);

// A settings group is shown or left. When it is shown: an unsorted list, its five columns and its rows, which the
// function given inserts.
template <class InsertRows>
HRESULT showPropertyGroup(bool selecting, Console& console, InsertRows&& insertRows)
{
    if (selecting)
    {
        insertPropertyColumns(console);
        insertRows();
    }
    return S_OK;
}

// Puts the rows in, in their order.
void insertProperties(std::span<const Core::SmartPtr<PropertyItem>> properties, Console& console);

} // namespace TMgmt
