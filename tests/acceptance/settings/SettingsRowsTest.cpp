#include "kit/ConsoleTest.h"

namespace Acceptance
{
namespace
{

using Cells = std::vector<std::wstring>;
using Rows = std::vector<Cells>;

class SettingsRows : public ConsoleTest
{
};

const std::vector<ConsoleView::Column> settingsColumns{
    {L"Property", 150}, {L"Value", 100}, {L"Is Default", 50}, {L"Description", 300}, {L"Default Value", 100}};

TEST_F(SettingsRows, listenerWithoutAConfigurationFile)
{
    open();
    view().select(L"Engine Settings\\Listener Configuration");
    EXPECT_EQ(settingsColumns, view().columns());
    EXPECT_FALSE(view().view().sortable());
    const Rows expected{
        {L"IP Address", L"0.0.0.0", L"Yes",
         L"The server will use the specified IP address to listen for incoming requests. Use 127.0.0.1 to restrict "
         L"access only to the current computer (loopback), 0.0.0.0 to listen on all network adapters, or a specific "
         L"IP address.",
         L"0.0.0.0"},
        {L"Port", L"1099", L"Yes", L"TCP port used to listen for incoming requests.", L"1099"},
        {L"Backlog", L"50", L"Yes", L"Specifies the maximum number of outstanding connection requests.", L"50"}};
    EXPECT_EQ(expected, view().rows());
}

} // namespace
} // namespace Acceptance
