#include "settings/Setting.h"

#include "kit/windows.h"

namespace Acceptance
{
namespace
{

constexpr wchar_t listener[] = L"Engine Settings\\Listener Configuration";
constexpr wchar_t encoder[] = L"Engine Settings\\AFP Encoder";
constexpr wchar_t log[] = L"Log";

} // namespace

std::wstring Setting::shown(const std::wstring& value) const
{
    for (const Option& option : options)
    {
        if (option.value == value)
        {
            return option.label;
        }
    }
    return value;
}

const std::vector<Setting>& allSettings()
{
    using enum Setting::Kind;
    static const std::vector<Setting> settings{
        {listener,
         L"ServerAddress",
         L"IP Address",
         text,
         L"0.0.0.0",
         L"10.0.0.7",
         L"The server will use the specified IP address to listen for incoming requests. Use 127.0.0.1 to restrict "
         L"access only to the current computer (loopback), 0.0.0.0 to listen on all network adapters, or a specific "
         L"IP address.",
         {}},
        {listener,
         L"ServerPort",
         L"Port",
         port,
         L"1099",
         L"2099",
         L"TCP port used to listen for incoming requests.",
         {}},
        {listener,
         L"ServerBacklog",
         L"Backlog",
         integer,
         L"50",
         L"7",
         L"Specifies the maximum number of outstanding connection requests.",
         {}},
        {encoder,
         L"AFPConvertToGrayscale",
         L"Convert to Grayscale",
         boolean,
         L"false",
         L"true",
         L"Convert all colors in the document into gray shades.",
         {}},
        {encoder,
         L"AFPGrayscaleMethod",
         L"Grayscale Method",
         enumeration,
         L"RGB",
         L"HILIGHT",
         L"Choose between several modes to generate gray colors on your printer.",
         {{L"RGB", L"RGB"}, {L"PATTERN", L"PATTERN"}, {L"HILIGHT", L"HILIGHT"}}},
        {encoder,
         L"AFPRotateLandscapePages",
         L"Rotate landscape pages",
         boolean,
         L"true",
         L"false",
         L"Rotate landscape pages automatically with 90 degrees.",
         {}},
        {encoder,
         L"AFPFontMethod",
         L"Fonts Used",
         enumeration,
         L"TTF_EMBEDDED",
         L"NATIVE_OUTLINE",
         L"Choose the font technology that is best suited for your printing process.",
         {{L"TTF_EMBEDDED", L"Embedded TTF"},
          {L"TTF", L"TTF"},
          {L"NATIVE_RASTER", L"AFP Raster"},
          {L"NATIVE_OUTLINE", L"AFP Outline"}}},
        {log,
         L"LogLevel",
         L"Log Level",
         enumeration,
         L"None",
         L"Normal",
         L"Choose between two levels of events to be reported. 'Normal' will log information, warning and error "
         L"events; 'All' will also log diagnostic traces. 'Debug' will output a verbouse diagnostic trace. To be used "
         L"only when troubleshooting.",
         {{L"None", L"None"}, {L"Normal", L"Normal"}, {L"All", L"All"}, {L"Debug", L"Debug"}}},
        {log,
         L"LogFolder",
         L"Log Folder",
         text,
         L"%APP_DATA%\\Brimlow\\Log\\",
         L"D:\\Logs",
         L"An existing folder that will receive the generated log files.",
         {}},
        {log,
         L"DumpStackTraceOnError",
         L"Dump Stack Trace On Error",
         boolean,
         L"false",
         L"true",
         L"The stack trace is logged whenever an exception is thrown. This should be set to false; turn it on for "
         L"troubleshooting, only when instructed by Technical Support.",
         {}},
    };
    return settings;
}

void PrintTo(const Setting& setting, std::ostream* out)
{
    *out << narrow(setting.key);
}

} // namespace Acceptance
