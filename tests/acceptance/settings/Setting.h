#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace Acceptance
{

struct Option
{
    std::wstring value;
    std::wstring label;
};

// What an administrator is promised about one setting.
struct Setting
{
    enum class Kind
    {
        text,
        integer,
        port,
        boolean,
        enumeration
    };

    std::wstring node;
    std::wstring key;
    std::wstring name;
    Kind kind;
    std::wstring defaultValue;
    // Another value that it may have.
    std::wstring otherValue;
    std::wstring description;
    std::vector<Option> options;

    // As the column "Value" shows it.
    std::wstring shown(const std::wstring& value) const;
};

// All of them, in the order of their nodes and rows.
const std::vector<Setting>& allSettings();

// The key, for the names and the messages of tests.
void PrintTo(const Setting& setting, std::ostream* out);

} // namespace Acceptance
