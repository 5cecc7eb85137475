#include "tmgmt/settings/LogItem.h"

#include "tmgmt/frame/scopeChildren.h"
#include "tmgmt/settings/propertyList.h"
#include "tmgmt/settings/settingKeys.h"

namespace TMgmt
{

LogItem::LogItem(const LoadedSettings& settings, Core::SmartPtr<CSnapInItem> logFiles)
    : Item(ScopeNode{.displayName = L"Log", .image = 8, .childCount = 1}), m_logFiles(std::move(logFiles))
{
    // Administrators have the description in their papers. Kept as is: it speaks of two log levels, and four are
    // offered.
    m_properties.emplace_back(new PropertyItem(
        SettingKey::logLevel, L"None",
        {{L"None", L"None"}, {L"Normal", L"Normal"}, {L"All", L"All"}, {L"Debug", L"Debug"}}, L"Log Level",
        L"Choose between two levels of events to be reported. 'Normal' will log information, warning and error "
        L"events; 'All' will also log diagnostic traces. 'Debug' will output a verbouse diagnostic trace. To be used "
        L"only when troubleshooting.",
        settings));
    m_properties.emplace_back(
        new PropertyItem(SettingKey::logFolder, L"%APP_DATA%\\Brimlow\\Log\\", PropertyKind::text, L"Log Folder",
                         L"An existing folder that will receive the generated log files.", settings));
    m_properties.emplace_back(new PropertyItem(
        SettingKey::dumpStackTraceOnError, L"false", PropertyKind::boolean, L"Dump Stack Trace On Error",
        L"The stack trace is logged whenever an exception is thrown. This should be set to false; turn it on for "
        L"troubleshooting, only when instructed by Technical Support.",
        settings));
}

HRESULT LogItem::OnShow(bool selecting, HSCOPEITEM, Console& console)
{
    return showPropertyGroup(selecting, console, [&] { insertRows(console); });
}

HRESULT LogItem::OnExpand(bool expanding, HSCOPEITEM handle, Console& console)
{
    return expandChildren(*this, {&m_logFiles, 1}, expanding, handle, console);
}

void LogItem::insertRows(Console& console)
{
    insertProperties(m_properties, console);
}

} // namespace TMgmt
