#include "tmgmt/settings/propertyList.h"

namespace TMgmt
{
namespace
{

void insertColumn(Console& console, PropertyColumn column, const wchar_t* title, int width)
{
    console.insertColumn(static_cast<int>(column), title, width);
}

} // namespace

void insertPropertyColumns(Console& console)
{
    console.switchSortingOff();
    insertColumn(console, PropertyColumn::name, L"Property", 150);
    insertColumn(console, PropertyColumn::value, L"Value", 100);
    insertColumn(console, PropertyColumn::isDefault, L"Is Default", 50);
    insertColumn(console, PropertyColumn::description, L"Description", 300);
    insertColumn(console, PropertyColumn::defaultValue, L"Default Value", 100);
}

void insertProperties(std::span<const Core::SmartPtr<PropertyItem>> properties, Console& console)
{
    for (const auto& property : properties)
    {
        console.insertRow(*property);
    }
}

} // namespace TMgmt
