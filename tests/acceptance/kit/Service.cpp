#include <winsock2.h>

#include <ws2tcpip.h>

#include "kit/Service.h"

#include "kit/ServerFiles.h"
#include "platform/handles.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <stdexcept>
#include <string_view>

namespace Acceptance::Service
{
namespace
{

constexpr DWORD patience = 10'000; // milliseconds
constexpr DWORD pollInterval = 20;
constexpr wchar_t endEvent[] = L"Global\\KVTessaroStandInEnd";

[[noreturn]] void fail(const std::string& what)
{
    throw std::runtime_error(what + ", error " + std::to_string(GetLastError()));
}

platform::ServiceHandle openManager()
{
    platform::ServiceHandle manager(OpenSCManagerW(nullptr, nullptr, SC_MANAGER_ALL_ACCESS));
    if (!manager)
    {
        fail("cannot open the service manager");
    }
    return manager;
}

platform::ServiceHandle openIfInstalled()
{
    const platform::ServiceHandle manager = openManager();
    platform::ServiceHandle service(OpenServiceW(manager.get(), name, SERVICE_ALL_ACCESS));
    if (!service && GetLastError() != ERROR_SERVICE_DOES_NOT_EXIST)
    {
        fail("cannot open the service");
    }
    return service;
}

platform::ServiceHandle open()
{
    platform::ServiceHandle service = openIfInstalled();
    if (!service)
    {
        fail("the service is not installed");
    }
    return service;
}

std::wstring commandLine(const std::wstring& switches)
{
    return L"\"" + (ServerFiles::programFolder() / L"TSvcStandIn.exe").wstring() + L"\" service " + switches;
}

bool comesTrue(const std::function<bool()>& condition)
{
    const ULONGLONG begin = GetTickCount64();
    while (!condition())
    {
        if (GetTickCount64() - begin > patience)
        {
            return false;
        }
        Sleep(pollInterval);
    }
    return true;
}

struct SocketTraits
{
    using Handle = SOCKET;
    static Handle none() noexcept { return INVALID_SOCKET; }
    static void close(Handle handle) noexcept { closesocket(handle); }
};
using Socket = platform::Owner<SocketTraits>;

Socket makeSocket()
{
    // Never ended: it lasts as long as the program.
    static const int started = []
    {
        WSADATA data;
        return WSAStartup(MAKEWORD(2, 2), &data);
    }();
    Socket socket(started == 0 ? ::socket(AF_INET, SOCK_STREAM, IPPROTO_TCP) : INVALID_SOCKET);
    if (!socket)
    {
        throw std::runtime_error("no sockets");
    }
    return socket;
}

sockaddr_in loopback(unsigned short port)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

} // namespace

void install(const std::wstring& switches)
{
    const platform::ServiceHandle manager = openManager();
    const platform::ServiceHandle service(CreateServiceW(
        manager.get(), name, name, SERVICE_QUERY_STATUS, SERVICE_WIN32_OWN_PROCESS, SERVICE_DEMAND_START,
        SERVICE_ERROR_NORMAL, commandLine(switches).c_str(), nullptr, nullptr, nullptr, nullptr, nullptr));
    if (!service)
    {
        fail("cannot install the service");
    }
}

void reconfigure(const std::wstring& switches)
{
    if (!ChangeServiceConfigW(open().get(), SERVICE_NO_CHANGE, SERVICE_NO_CHANGE, SERVICE_NO_CHANGE,
                              commandLine(switches).c_str(), nullptr, nullptr, nullptr, nullptr, nullptr, nullptr))
    {
        fail("cannot change the service");
    }
}

void remove()
{
    {
        const platform::ServiceHandle service = openIfInstalled();
        if (!service)
        {
            return;
        }
        end();
        if (!DeleteService(service.get()) && GetLastError() != ERROR_SERVICE_MARKED_FOR_DELETE)
        {
            fail("cannot delete the service");
        }
    }
    if (!comesTrue([] { return !openIfInstalled(); }))
    {
        fail("the deleted service does not go: somebody keeps it open");
    }
}

DWORD state()
{
    const platform::ServiceHandle service = openIfInstalled();
    SERVICE_STATUS status{};
    return service && QueryServiceStatus(service.get(), &status) ? status.dwCurrentState : 0;
}

DWORD processId()
{
    SERVICE_STATUS_PROCESS status{};
    DWORD size = 0;
    if (!QueryServiceStatusEx(open().get(), SC_STATUS_PROCESS_INFO, reinterpret_cast<BYTE*>(&status), sizeof status,
                              &size))
    {
        fail("cannot query the service");
    }
    return status.dwProcessId;
}

void start()
{
    if (!StartServiceW(open().get(), 0, nullptr))
    {
        fail("cannot start the service");
    }
    waitFor(SERVICE_RUNNING);
}

void control(DWORD control)
{
    SERVICE_STATUS status{};
    if (!ControlService(open().get(), control, &status))
    {
        fail("the service refuses the control " + std::to_string(control));
    }
}

void waitFor(DWORD wanted)
{
    EXPECT_TRUE(comesTrue([wanted] { return state() == wanted; }))
        << "the service is in state " << state() << ", not " << wanted;
}

void end()
{
    const auto stopped = []
    {
        // Again each time: a service that is just starting may not have made its event yet.
        if (const platform::KernelHandle event{OpenEventW(EVENT_MODIFY_STATE, FALSE, endEvent)})
        {
            SetEvent(event.get());
        }
        return state() == SERVICE_STOPPED;
    };
    if (!comesTrue(stopped))
    {
        fail("the service cannot be ended");
    }
}

bool answersOn(unsigned short port)
{
    const Socket socket = makeSocket();
    const sockaddr_in address = loopback(port);
    if (connect(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
    {
        return false;
    }
    const DWORD timeout = patience;
    setsockopt(socket.get(), SOL_SOCKET, SO_RCVTIMEO, reinterpret_cast<const char*>(&timeout), sizeof timeout);
    constexpr std::string_view greeting = "KV Tessaro stand-in\r\n";
    std::array<char, greeting.size()> answer{};
    const int length = recv(socket.get(), answer.data(), static_cast<int>(answer.size()), MSG_WAITALL);
    return length > 0 && std::string_view(answer.data(), static_cast<std::size_t>(length)) == greeting;
}

unsigned short freePort()
{
    const Socket socket = makeSocket();
    sockaddr_in address = loopback(0);
    int size = sizeof address;
    if (bind(socket.get(), reinterpret_cast<const sockaddr*>(&address), size) != 0 ||
        getsockname(socket.get(), reinterpret_cast<sockaddr*>(&address), &size) != 0)
    {
        throw std::runtime_error("no free port");
    }
    return ntohs(address.sin_port);
}

void useFreePort()
{
    ServerFiles::write(ServerFiles::configuration(),
                       ServerFiles::configurationWith("    <add key=\"ServerAddress\" value=\"127.0.0.1\"/>\r\n"
                                                      "    <add key=\"ServerPort\" value=\"" +
                                                      std::to_string(freePort()) + "\"/>\r\n"));
}

void startOnFreePort()
{
    useFreePort();
    install();
    start();
}

} // namespace Acceptance::Service
