#include "brimlow/system/Configuration.h"

#include "ConfigurationDocument.h"
#include "Utf.h"
#include "XmlText.h"
#include "brimlow/system/AtomicFile.h"
#include "brimlow/system/Exception.h"

#include <cwchar>
#include <iterator>
#include <unordered_map>
#include <vector>

namespace Core
{

namespace
{

void checkStorable(const String& text, const String& key, const String& path, const wchar_t* what)
{
    for (std::size_t at = 0; at < text.length();)
    {
        const DecodedCharacter next = decodeUtf16(text.view(), at);
        if (!next.valid || !isXmlCharacter(next.character))
        {
            wchar_t code[16];
            std::swprintf(code, std::size(code), L"U+%04X", static_cast<unsigned int>(next.character));
            throw FormatException(String(what) + L" \"" + key + L"\" cannot be stored in \"" + path +
                                  L"\", because it contains the character " + code + L".");
        }
        at += next.length;
    }
}

} // namespace

struct Configuration::Store
{
    // All entries of a key, in file order; the last one counts.
    using Entries = std::vector<pugi::xml_node>;

    ConfigurationDocument document;
    std::unordered_map<String, Entries> entries;
    // The entries that count, in file order; made when it is asked for and empty while out of date.
    std::vector<pugi::xml_node> order;

    const pugi::xml_node& at(std::size_t index)
    {
        if (index >= entries.size())
        {
            UnreacheableCodeException exception;
            exception.initCodeLocation(L"Configuration", __LINE__);
            exception.logError();
            throw exception;
        }
        if (order.empty())
        {
            for (auto entry = document.firstEntry(); entry; entry = document.nextEntry(entry))
            {
                if (entries.at(ConfigurationDocument::keyOf(entry)).back() == entry)
                {
                    order.push_back(entry);
                }
            }
        }
        return order[index];
    }
};

Configuration::Configuration() : m_store(std::make_unique<Store>()) {}

Configuration::Configuration(Configuration&&) noexcept = default;
Configuration& Configuration::operator=(Configuration&&) noexcept = default;
Configuration::~Configuration() = default;

void Configuration::loadFrom(const String& path)
{
    auto store = std::make_unique<Store>();
    store->document.read(path, IO::AtomicFile::read(path));
    const ConfigurationDocument& document = store->document;
    for (auto entry = document.firstEntry(); entry; entry = document.nextEntry(entry))
    {
        store->entries[ConfigurationDocument::keyOf(entry)].push_back(entry);
    }
    m_store = std::move(store);
}

bool Configuration::getValue(const String& key, String& value) const
{
    const auto found = m_store->entries.find(key);
    if (found == m_store->entries.end())
    {
        return false;
    }
    value = ConfigurationDocument::valueOf(found->second.back());
    return true;
}

void Configuration::setValue(const String& key, const String& value, const String& path)
{
    checkStorable(key, key, path, L"The key");
    checkStorable(value, key, path, L"The value of the key");
    const auto found = m_store->entries.find(key);
    if (found != m_store->entries.end())
    {
        ConfigurationDocument::setValue(found->second.back(), value);
        return;
    }
    m_store->order.clear();
    m_store->entries[key] = {m_store->document.append(key, value)};
}

void Configuration::deleteValue(const String& key)
{
    const auto found = m_store->entries.find(key);
    if (found == m_store->entries.end())
    {
        return;
    }
    m_store->order.clear();
    for (const pugi::xml_node& entry : found->second)
    {
        ConfigurationDocument::remove(entry);
    }
    m_store->entries.erase(found);
}

std::size_t Configuration::getKeyCount() const
{
    return m_store->entries.size();
}

String Configuration::getKeyAt(std::size_t index) const
{
    return ConfigurationDocument::keyOf(m_store->at(index));
}

String Configuration::getValueAt(std::size_t index) const
{
    return ConfigurationDocument::valueOf(m_store->at(index));
}

void Configuration::saveTo(const String& path) const
{
    IO::AtomicFile::write(path, m_store->document.write());
}

} // namespace Core
