#include "tmgmt/hotfolders/rules/OutputFormats.h"

#include "brimlow/system/Format.h"

#include <algorithm>

namespace TMgmt
{

int indexOfFormat(Tessaro::OutputFormat format) noexcept
{
    const auto entry = std::ranges::find(outputFormats, format, &OutputFormatEntry::format);
    return entry == outputFormats.end() ? 0 : static_cast<int>(entry - outputFormats.begin());
}

std::optional<Tessaro::OutputFormat> formatAt(int index) noexcept
{
    if (index < 0 || index >= static_cast<int>(outputFormats.size()))
    {
        return std::nullopt;
    }
    return outputFormats[static_cast<std::size_t>(index)].format;
}

bool storedFormatHasPageIndex(Tessaro::OutputFormat format) noexcept
{
    return format >= Tessaro::OutputFormat::Jpeg && format <= Tessaro::OutputFormat::Svg;
}

bool listIndexHasPageIndex(int index) noexcept
{
    return index >= 11 && index <= 14;
}

int pageIndexToStore(int index, const Core::String& text) noexcept
{
    int pageIndex = 0;
    if (listIndexHasPageIndex(index))
    {
        Core::Format::parseInt(text, pageIndex);
    }
    return pageIndex;
}

} // namespace TMgmt
