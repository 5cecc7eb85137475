// Any bytes as a configuration file: they are refused with an exception that says why, or else keep their entries
// through saving, adding a key and deleting it again.

#include "ConfigurationDocument.h"
#include "checks.h"
#include "rules.h"

#include <utility>
#include <vector>

using Core::ConfigurationDocument;
using Core::String;

namespace
{

using Entries = std::vector<std::pair<String, String>>;

Entries entriesOf(const ConfigurationDocument& document)
{
    Entries entries;
    for (auto entry = document.firstEntry(); entry; entry = document.nextEntry(entry))
    {
        entries.emplace_back(ConfigurationDocument::keyOf(entry), ConfigurationDocument::valueOf(entry));
    }
    return entries;
}

} // namespace

void checkConfiguration(std::string_view content)
{
    const String path = L"any.config";
    ConfigurationDocument document;
    try
    {
        document.read(path, content);
    }
    catch (const Core::FormatException& exception)
    {
        require(exception.getMessage().str().find(path.str()) != std::wstring::npos, "a refusal names the file");
        return;
    }
    const Entries entries = entriesOf(document);
    const std::string saved = document.write();

    ConfigurationDocument again;
    again.read(path, saved);
    require(entriesOf(again) == entries, "a save keeps the entries");
    require(again.write() == saved, "a second save changes nothing");

    const String value = L"<\"&'>\n\t\U0001F600";
    document.append(L"new", value);
    ConfigurationDocument withNew;
    withNew.read(path, document.write());
    Entries expected = entries;
    expected.emplace_back(L"new", value);
    require(entriesOf(withNew) == expected, "a new key goes last");

    pugi::xml_node last = withNew.firstEntry();
    for (auto next = last; next; next = withNew.nextEntry(next))
    {
        last = next;
    }
    ConfigurationDocument::setValue(last, L"");
    ConfigurationDocument::remove(last);
    ConfigurationDocument without;
    without.read(path, withNew.write());
    require(entriesOf(without) == entries, "deleting the new key leaves the others");
}
