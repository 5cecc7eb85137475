#pragma once

#include "brimlow/system/String.h"

#include <cstddef>
#include <memory>

namespace Core
{

// A flat store of keys and values, both texts, kept in a file of this form:
//
//     <?xml version="1.0" encoding="utf-8"?>
//     <configuration>
//       <appSettings>
//         <add key="ServerPort" value="1099"/>
//       </appSettings>
//     </configuration>
//
// Keys are compared case-sensitively. The order of the file is the order of the store. Where a key occurs more than
// once the last one counts. An "add" without a key is left alone, one without a value has the empty value.
//
// Everything else in the file (comments, other elements, white space, the byte order mark) is kept by a save; only the
// blanks inside tags and the kind of quotes may change. Files in UTF-8 and UTF-16 are read; UTF-8 is written.
class Configuration
{
  public:
    // An empty store.
    Configuration();
    Configuration(Configuration&&) noexcept;
    Configuration& operator=(Configuration&&) noexcept;
    ~Configuration();

    // Replaces the store by the file's content. An empty file, or one without appSettings, is an empty store.
    // Throws FileNotFoundException or IOException; FileFormatException, with the position, when the file is not
    // well-formed or holds a document type declaration (which is never followed); FormatException when its root element
    // is not "configuration". After a failure the store is what it was.
    void loadFrom(const String& path);

    // Returns false, and leaves value alone, when there is no such key.
    bool getValue(const String& key, String& value) const;

    // Changes the key in its place, or adds it after all others. path is the full path of the file being edited; it is
    // what a refusal names. Throws FormatException when the key or the value holds a character that XML cannot hold:
    // an unpaired surrogate, U+FFFE, U+FFFF, or a control character other than tab, line feed and carriage return.
    void setValue(const String& key, const String& value, const String& path);

    // Removes every occurrence of the key; removing an absent key is harmless.
    void deleteValue(const String& key);

    // The keys in file order, each once, in the place of the occurrence that counts. An index not below getKeyCount()
    // throws UnreacheableCodeException. Walking all keys takes linear time as long as none is added or removed
    // meanwhile.
    std::size_t getKeyCount() const;
    String getKeyAt(std::size_t index) const;
    String getValueAt(std::size_t index) const;

    // Writes the whole store, always, as AtomicFile::write does: the old file or the new one, never half of one.
    // Throws IOException, with the old file whole.
    void saveTo(const String& path) const;

  private:
    struct Store;
    std::unique_ptr<Store> m_store;
};

} // namespace Core
