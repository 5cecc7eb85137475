#pragma once

#include "brimlow/system/String.h"

#include <pugixml.hpp>

#include <string>
#include <string_view>

namespace Core
{

// Reads a file's content (UTF-8 or UTF-16) into document, checked to be well-formed, without a document type
// declaration, and kept to the letter: references stay unresolved and white space stays, so that writing the document
// with pugi::format_raw | pugi::format_no_escapes gives the file again. All attribute values are fit for double quotes.
// path is for messages only. Throws FileFormatException.
void readXml(const String& path, std::string_view content, pugi::xml_document& document);

// Whether the content begins with the byte order mark of UTF-8.
bool hasUtf8ByteOrderMark(std::string_view content) noexcept;

} // namespace Core
