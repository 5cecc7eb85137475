#pragma once

#include "brimlow/system/String.h"
#include "brimlow/tessaro/OutputFormat.h"

#include <array>
#include <optional>

namespace TMgmt
{

struct OutputFormatEntry
{
    const wchar_t* name;
    Tessaro::OutputFormat format;
};

// The list of output formats, in the order in which it is offered.
inline constexpr std::array<OutputFormatEntry, 13> outputFormats{{
    {L"PDF", Tessaro::OutputFormat::Pdf},
    {L"Postscript", Tessaro::OutputFormat::Postscript},
    {L"AFP", Tessaro::OutputFormat::Afp},
    {L"WordML", Tessaro::OutputFormat::WordMl},
    {L"Silverlight", Tessaro::OutputFormat::Silverlight},
    {L"XPS", Tessaro::OutputFormat::Xps},
    {L"TIFF", Tessaro::OutputFormat::Tiff},
    {L"HTML", Tessaro::OutputFormat::Html},
    {L"XSL-FO", Tessaro::OutputFormat::XslFo},
    {L"JPEG", Tessaro::OutputFormat::Jpeg},
    {L"GIF", Tessaro::OutputFormat::Gif},
    {L"PNG", Tessaro::OutputFormat::Png},
    {L"SVG", Tessaro::OutputFormat::Svg},
}};

// Where a format stands in the list; 0, "PDF", for one that does not stand there.
int indexOfFormat(Tessaro::OutputFormat format) noexcept;
// The format at that place of the list; nothing for an index that is none.
std::optional<Tessaro::OutputFormat> formatAt(int index) noexcept;

// Whether a page can be chosen for a hot folder that is stored with this format: JPEG, GIF, PNG and SVG.
bool storedFormatHasPageIndex(Tessaro::OutputFormat format) noexcept;
// Whether a page can be chosen when this entry of the list is. It asks for the indexes 11 to 14, which are the
// numbers of the picture formats and not their places. Kept as is: of the entries of the list only PNG and SVG have a
// page index.
bool listIndexHasPageIndex(int index) noexcept;

// The page index to store for what stands in the dialog: 0 for an entry that has none, JPEG and GIF among them, and
// for a text that is no number.
int pageIndexToStore(int index, const Core::String& text) noexcept;

} // namespace TMgmt
