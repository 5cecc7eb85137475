#include "tmgmt/settings/ListenerConfigurationItem.h"

#include <array>

#include "tmgmt/settings/propertyList.h"
#include "tmgmt/settings/settingKeys.h"

namespace TMgmt
{
namespace
{

constexpr int defaultPort = 1099;
constexpr int defaultBacklog = 50;

} // namespace

ListenerConfigurationItem::ListenerConfigurationItem(const LoadedSettings& settings)
    : Item(ScopeNode{.displayName = L"Listener Configuration", .image = 13, .childCount = 0}),
      m_address(new PropertyItem(SettingKey::serverAddress, L"0.0.0.0", PropertyKind::text, L"IP Address",
                                 L"The server will use the specified IP address to listen for incoming requests. Use "
                                 L"127.0.0.1 to restrict access only to the current computer (loopback), 0.0.0.0 to "
                                 L"listen on all network adapters, or a specific IP address.",
                                 settings)),
      m_port(new PropertyItem(SettingKey::serverPort, std::to_wstring(defaultPort), PropertyKind::tcpPort, L"Port",
                              L"TCP port used to listen for incoming requests.", settings)),
      m_backlog(new PropertyItem(SettingKey::serverBacklog, std::to_wstring(defaultBacklog), PropertyKind::integer,
                                 L"Backlog", L"Specifies the maximum number of outstanding connection requests.",
                                 settings))
{
}

HRESULT ListenerConfigurationItem::OnShow(bool selecting, HSCOPEITEM, Console& console)
{
    return showPropertyGroup(selecting, console, [&] { insertRows(console); });
}

void ListenerConfigurationItem::insertRows(Console& console)
{
    insertProperties(std::array{m_address, m_port, m_backlog}, console);
}

} // namespace TMgmt
