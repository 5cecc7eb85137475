#include "tmgmt/frame/AboutKVTessaroItem.h"

#include "brimlow/system/StringFormatStream.h"
#include "tmgmt/frame/ProductInformation.h"

namespace TMgmt
{
namespace
{

// The date of this build of the product.
constexpr wchar_t buildMonth[] = L"Nov";
constexpr int buildDay = 5;
constexpr int buildYear = 2009;

Core::String buildDate()
{
    return Core::format(L"{0} {1}, {2}", buildMonth, buildDay, buildYear);
}

} // namespace

AboutKVTessaroItem::AboutKVTessaroItem()
    : Item(ScopeNode{.displayName = L"About KV Tessaro", .image = 14, .childCount = 0})
{
    const ProductInformation product = ProductInformation::read();
    const auto addRow = [this](const wchar_t* name, const Core::String& value)
    { m_rows.emplace_back(new AboutPropertyItem(name, value)); };
    addRow(L"Product Name", product.name);
    addRow(L"Version", product.version);
    addRow(L"Build Number", product.buildNumber);
    addRow(L"Build Date", buildDate());
}

HRESULT AboutKVTessaroItem::OnShow(bool selecting, HSCOPEITEM, Console& console)
{
    console.clearRows();
    console.updateAllViews(*this, CCT_SCOPE);
    if (selecting)
    {
        console.switchSortingOff();
        console.insertColumn(0, L"Property", 200);
        console.insertColumn(1, L"Value", 200);
        insertRows(console);
    }
    return S_OK;
}

void AboutKVTessaroItem::insertRows(Console& console)
{
    for (const auto& row : m_rows)
    {
        console.insertRow(*row);
    }
}

} // namespace TMgmt
