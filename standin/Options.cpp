#include "Options.h"

#include <brimlow/system/Exception.h>
#include <brimlow/system/Format.h>

#include <algorithm>
#include <array>

namespace StandIn
{

namespace
{

// Ten minutes: what a test could sensibly wait for, and far below what DWORD arithmetic holds.
constexpr int largestNumber = 600'000;

struct CommandName
{
    const wchar_t* name;
    Command command;
    bool takesSwitches;
    const wchar_t* help;
};

constexpr std::array commandNames = {
    CommandName{L"install", Command::install, true, L"creates the service \"KV Tessaro\" (started on demand)"},
    CommandName{L"uninstall", Command::uninstall, false, L"ends and deletes the service, and waits until it is gone"},
    CommandName{L"reconfigure", Command::reconfigure, true, L"replaces all switches of the installed service"},
    CommandName{L"start", Command::start, false, L"starts the service and waits while it is starting"},
    CommandName{L"stop", Command::stop, false, L"stops the service and waits while it is stopping"},
    CommandName{L"end", Command::end, false, L"ends the service even when it hangs or refuses to stop"},
    CommandName{L"status", Command::status, false, L"prints the service's state"},
    CommandName{L"run", Command::run, false, L"does the service's work in this console until Ctrl+C"},
    CommandName{L"service", Command::service, true, L"for the service manager only"},
};

struct NumberSwitch
{
    const wchar_t* name;
    unsigned TestSwitches::*member;
    const wchar_t* unit;
    const wchar_t* help;
};

constexpr std::array numberSwitches = {
    NumberSwitch{L"--start-checkpoints", &TestSwitches::startCheckPoints, L" N",
                 L"reports N check points while starting"},
    NumberSwitch{L"--stop-checkpoints", &TestSwitches::stopCheckPoints, L" N",
                 L"reports N check points while stopping"},
    NumberSwitch{L"--checkpoint-interval", &TestSwitches::checkPointInterval, L" MS",
                 L"milliseconds between check points (default 200)"},
    NumberSwitch{L"--wait-hint", &TestSwitches::waitHint, L" MS", L"wait hint while pending (default 5000)"},
};

struct FlagSwitch
{
    const wchar_t* name;
    bool TestSwitches::*member;
    const wchar_t* help;
};

constexpr std::array flagSwitches = {
    FlagSwitch{L"--start-hang", &TestSwitches::startHang, L"stays START_PENDING, the check point never grows"},
    FlagSwitch{L"--stop-hang", &TestSwitches::stopHang, L"stays STOP_PENDING, the check point never grows"},
    FlagSwitch{L"--refuse-stop", &TestSwitches::refuseStop, L"does not accept stop (error 1052)"},
    FlagSwitch{L"--refuse-start", &TestSwitches::refuseStart, L"ends before it is a service (error 1053)"},
    FlagSwitch{L"--pausable", &TestSwitches::pausable, L"accepts pause and continue"},
};

template <class Table>
auto find(const Table& table, const std::wstring& name)
{
    return std::find_if(table.begin(), table.end(), [&](const auto& row) { return row.name == name; });
}

unsigned parseNumber(const std::wstring& name, const std::wstring& text)
{
    int number = 0;
    if (!Core::Format::parseInt(text, number) || number < 0 || number > largestNumber)
    {
        throw Core::FormatException(L"\"" + text + L"\" is no value for " + name + L": give a number from 0 to " +
                                    std::to_wstring(largestNumber) + L".");
    }
    return static_cast<unsigned>(number);
}

TestSwitches parseSwitches(const std::vector<std::wstring>& arguments)
{
    TestSwitches switches;
    for (std::size_t i = 1; i < arguments.size(); ++i)
    {
        const std::wstring& name = arguments[i];
        if (const auto flag = find(flagSwitches, name); flag != flagSwitches.end())
        {
            switches.*(flag->member) = true;
            continue;
        }
        const auto number = find(numberSwitches, name);
        if (number == numberSwitches.end())
        {
            throw Core::FormatException(L"Unknown switch \"" + name + L"\". See --help.");
        }
        if (++i == arguments.size())
        {
            throw Core::FormatException(name + L" needs a number after it.");
        }
        switches.*(number->member) = parseNumber(name, arguments[i]);
    }
    return switches;
}

std::wstring helpRow(std::wstring name, const std::wstring& help)
{
    name.resize(std::max<std::size_t>(name.size() + 1, 26), L' ');
    return L"  " + name + help + L"\n";
}

} // namespace

Options parseOptions(const std::vector<std::wstring>& arguments)
{
    if (arguments.empty() || std::find(arguments.begin(), arguments.end(), L"--help") != arguments.end())
    {
        return {};
    }
    const auto row = find(commandNames, arguments.front());
    if (row == commandNames.end())
    {
        throw Core::FormatException(L"Unknown command \"" + arguments.front() + L"\". See --help.");
    }
    if (!row->takesSwitches && arguments.size() > 1)
    {
        throw Core::FormatException(L"\"" + arguments.front() + L"\" takes no arguments, but \"" + arguments[1] +
                                    L"\" was given.");
    }
    return {row->command, parseSwitches(arguments)};
}

std::wstring formatSwitches(const TestSwitches& switches)
{
    const TestSwitches defaults;
    std::wstring text;
    const auto add = [&](const std::wstring& part) { text += (text.empty() ? L"" : L" ") + part; };
    for (const NumberSwitch& row : numberSwitches)
    {
        if (switches.*(row.member) != defaults.*(row.member))
        {
            add(row.name + (L" " + std::to_wstring(switches.*(row.member))));
        }
    }
    for (const FlagSwitch& row : flagSwitches)
    {
        if (switches.*(row.member))
        {
            add(row.name);
        }
    }
    return text;
}

std::wstring helpText()
{
    std::wstring text = L"Stand-in for the rendering server's service \"KV Tessaro\", for development and tests.\n\n"
                        L"TSvcStandIn COMMAND [SWITCHES]\n\nCommands:\n";
    for (const CommandName& row : commandNames)
    {
        text += helpRow(row.name, row.help);
    }
    text += L"\nSwitches, for install and reconfigure, in force from the next start:\n";
    for (const NumberSwitch& row : numberSwitches)
    {
        text += helpRow(std::wstring(row.name) + row.unit, row.help);
    }
    for (const FlagSwitch& row : flagSwitches)
    {
        text += helpRow(row.name, row.help);
    }
    text += L"\nSetting the event \"Global\\KVTessaroStandInEnd\" ends the service whatever its switches,\nand \"run\" "
            L"as well.\n\n"
            L"Exit codes: 0 done; 1 it failed; 2 the arguments are not understood; 3 the service is not in the state\n"
            L"asked for (status: not running); 4 the service is not installed.";
    return text;
}

} // namespace StandIn
