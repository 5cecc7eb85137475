#include "CommandLine.h"

#include <objbase.h>

#include <algorithm>
#include <cwchar>
#include <limits>

namespace Console
{

const wchar_t* const usage = LR"(TConsole - a console window for management-console snap-ins

  TConsole [--snapin {CLSID}] [--select PATH] [--row TEXT] [--size WxH] [--trace FILE]
        opens the window
  TConsole --list | --json [--snapin {CLSID}] [--select PATH] [--trace FILE]
        prints the tree with the columns and rows of every node, as text or as JSON (UTF-8)
  TConsole --screenshot FILE.png [--select PATH] [--row TEXT] [--command NAME [--press ID | --enter ID=TEXT]...]
        saves a picture of the window and ends

  --snapin {CLSID}   the snap-in to open (any that is registered with the management console)
  --select PATH      names of nodes below the top node, separated by backslashes: "Engine Settings\Private Fonts";
                     a backslash inside a name is written ^\, a caret before one ^^. With --list or --json only that
                     part is printed.
  --row TEXT         selects the row whose first column is TEXT
  --size WxH         width and height of the window, in pixels
  --command NAME     runs a command of the row's (without --row: of the node's) context menu: its number or its text,
                     "Edit Property". A dialog that it opens is in the picture, and is cancelled afterwards.
  --press ID         presses the control with that number in the open dialog before the picture is taken
  --enter ID=TEXT    puts TEXT into that control. --press and --enter may be repeated; they act in their order.
  --trace FILE       writes every call between console and snap-in to FILE
  --help             prints this

With --list, --json and --screenshot message boxes are printed to the error output and answered with their default
button. Exit codes: 0 done, 1 failed (with a sentence on the error output), 2 wrong command line.
)";

namespace
{

class Arguments
{
  public:
    explicit Arguments(const std::vector<std::wstring>& arguments) : m_arguments(arguments) {}

    bool atEnd() const { return m_next == m_arguments.size(); }

    const std::wstring& option() { return m_arguments[m_next++]; }

    const std::wstring& value(const std::wstring& option)
    {
        if (atEnd())
        {
            throw UsageError{option + L" needs a value."};
        }
        return m_arguments[m_next++];
    }

  private:
    const std::vector<std::wstring>& m_arguments;
    std::size_t m_next = 0;
};

CLSID parseClassId(const std::wstring& text)
{
    CLSID clsid{};
    // CLSIDFromString also takes a ProgID, which is not what is asked for here.
    if (text.empty() || text.front() != L'{' || FAILED(CLSIDFromString(text.c_str(), &clsid)))
    {
        throw UsageError{L"\"" + text + L"\" is not a class id of the form {xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx}."};
    }
    return clsid;
}

// Digits only, 0 to the largest int.
std::optional<int> parseNumber(const std::wstring& text)
{
    const auto isDigit = [](wchar_t c) { return c >= L'0' && c <= L'9'; };
    if (text.empty() || text.size() > 10 || !std::all_of(text.begin(), text.end(), isDigit))
    {
        return std::nullopt;
    }
    const long long number = std::wcstoll(text.c_str(), nullptr, 10);
    if (number > std::numeric_limits<int>::max())
    {
        return std::nullopt;
    }
    return static_cast<int>(number);
}

SIZE parseSize(const std::wstring& text)
{
    const std::size_t cross = text.find(L'x');
    const int width = parseNumber(text.substr(0, cross)).value_or(0);
    const int height = cross == std::wstring::npos ? 0 : parseNumber(text.substr(cross + 1)).value_or(0);
    const auto sensible = [](int length) { return length >= 100 && length <= 10000; };
    if (!sensible(width) || !sensible(height))
    {
        throw UsageError{L"\"" + text + L"\" is not a size of the form 1024x768 (100 to 10000 pixels each way)."};
    }
    return {width, height};
}

int parseControl(const std::wstring& text)
{
    const auto control = parseNumber(text);
    if (!control || *control > 0xFFFF)
    {
        throw UsageError{L"\"" + text + L"\" is not the number of a control (0 to 65535)."};
    }
    return *control;
}

DialogStep parseEnter(const std::wstring& text)
{
    const std::size_t equals = text.find(L'=');
    if (equals == std::wstring::npos)
    {
        throw UsageError{L"\"" + text + L"\" is not of the form ID=TEXT."};
    }
    return {parseControl(text.substr(0, equals)), text.substr(equals + 1)};
}

void setMode(CommandLine& line, CommandLine::Mode mode)
{
    if (line.mode != CommandLine::Mode::window && line.mode != mode)
    {
        throw UsageError{L"Only one of --list, --json and --screenshot can be given."};
    }
    line.mode = mode;
}

void checkTogether(const CommandLine& line)
{
    const bool listing = line.mode == CommandLine::Mode::list || line.mode == CommandLine::Mode::json;
    if (listing && (line.row || line.size))
    {
        throw UsageError{L"--row and --size belong to the window; they cannot be given with --list or --json."};
    }
    if (line.command && line.mode != CommandLine::Mode::screenshot)
    {
        throw UsageError{L"--command can only be given with --screenshot."};
    }
    if (!line.steps.empty() && !line.command)
    {
        throw UsageError{L"--press and --enter need a dialog: give --command too."};
    }
}

} // namespace

CommandLine parseCommandLine(const std::vector<std::wstring>& arguments)
{
    CommandLine line;
    for (const std::wstring& argument : arguments)
    {
        if (argument == L"--help" || argument == L"-h" || argument == L"-?" || argument == L"/?")
        {
            line.mode = CommandLine::Mode::help;
            return line;
        }
    }

    Arguments rest(arguments);
    while (!rest.atEnd())
    {
        const std::wstring& option = rest.option();
        if (option == L"--list")
        {
            setMode(line, CommandLine::Mode::list);
        }
        else if (option == L"--json")
        {
            setMode(line, CommandLine::Mode::json);
        }
        else if (option == L"--screenshot")
        {
            setMode(line, CommandLine::Mode::screenshot);
            line.screenshot = rest.value(option);
        }
        else if (option == L"--snapin")
        {
            line.snapIn = parseClassId(rest.value(option));
        }
        else if (option == L"--select")
        {
            const std::wstring& text = rest.value(option);
            const auto path = parseNodePath(text);
            if (!path)
            {
                throw UsageError{L"\"" + text + L"\" is not a path: there is an empty name in it."};
            }
            line.select = *path;
        }
        else if (option == L"--row")
        {
            line.row = rest.value(option);
        }
        else if (option == L"--command")
        {
            line.command = rest.value(option);
        }
        else if (option == L"--press")
        {
            line.steps.push_back({parseControl(rest.value(option)), std::nullopt});
        }
        else if (option == L"--enter")
        {
            line.steps.push_back(parseEnter(rest.value(option)));
        }
        else if (option == L"--size")
        {
            line.size = parseSize(rest.value(option));
        }
        else if (option == L"--trace")
        {
            line.trace = rest.value(option);
        }
        else
        {
            throw UsageError{L"\"" + option + L"\" is not an option of this program."};
        }
    }
    checkTogether(line);
    return line;
}

} // namespace Console
