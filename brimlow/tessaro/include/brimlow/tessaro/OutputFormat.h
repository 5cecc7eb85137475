#pragma once

namespace Tessaro
{

// What the server can render to. The numbers are stored and shared with the server; 8 is not used. Stored values that
// are not listed here are kept as they are.
enum class OutputFormat
{
    Pdf = 1,
    Afp = 2,
    Postscript = 3,
    WordMl = 4,
    Silverlight = 5,
    Xps = 6,
    Tiff = 7,
    Html = 9,
    XslFo = 10,
    Jpeg = 11,
    Gif = 12,
    Png = 13,
    Svg = 14
};

} // namespace Tessaro
