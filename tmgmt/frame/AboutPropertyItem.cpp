#include "tmgmt/frame/AboutPropertyItem.h"

namespace TMgmt
{

AboutPropertyItem::AboutPropertyItem(const wchar_t* name, Core::String value)
    : Item(ResultNode{.displayName = L"Property Item", .image = 2}), m_name(name), m_value(std::move(value))
{
}

const wchar_t* AboutPropertyItem::GetResultPaneColInfo(int column)
{
    switch (column)
    {
    case 0:
        return m_name;
    case 1:
        return m_value.c_str();
    default:
        return L"";
    }
}

} // namespace TMgmt
