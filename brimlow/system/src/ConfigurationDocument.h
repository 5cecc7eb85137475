#pragma once

#include "brimlow/system/String.h"

#include <pugixml.hpp>

#include <string>
#include <string_view>

namespace Core
{

// The XML of a configuration file: finds its entries (the "add" elements of appSettings that have a key), and changes
// them so that the rest of the file keeps its form.
class ConfigurationDocument
{
  public:
    // A document without entries.
    ConfigurationDocument();

    // Empty content is a document without entries. path is for messages only. Throws FormatException.
    void read(const String& path, std::string_view content);
    std::string write() const;

    // Entries in file order; each call gives a null node after the last one.
    pugi::xml_node firstEntry() const;
    pugi::xml_node nextEntry(const pugi::xml_node& entry) const;

    static String keyOf(const pugi::xml_node& entry);
    static String valueOf(const pugi::xml_node& entry);

    static void setValue(pugi::xml_node entry, const String& value);
    // The new entry follows all others, indented as they are.
    pugi::xml_node append(const String& key, const String& value);
    static void remove(const pugi::xml_node& entry);

  private:
    pugi::xml_node entryFrom(pugi::xml_node element, pugi::xml_node section) const;
    pugi::xml_node appendElement(pugi::xml_node parent, const char* name) const;
    std::string indentationIn(const pugi::xml_node& parent) const;

    pugi::xml_document m_document;
    bool m_hasByteOrderMark = false;
    std::string m_lineEnd = "\r\n";
};

} // namespace Core
