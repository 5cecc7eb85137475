#include "Listener.h"

#include <brimlow/system/Exception.h>

#include <ws2tcpip.h>

#include <array>
#include <memory>

namespace StandIn
{

namespace
{

using AddressList = platform::Owner<platform::NullTraits<PADDRINFOW, FreeAddrInfoW>>;

AddressList resolve(const std::wstring& address, const std::wstring& port)
{
    ADDRINFOW hints{};
    hints.ai_flags = AI_PASSIVE | AI_NUMERICHOST | AI_NUMERICSERV;
    hints.ai_socktype = SOCK_STREAM;
    hints.ai_protocol = IPPROTO_TCP;
    AddressList addresses;
    if (const int error = GetAddrInfoW(address.c_str(), port.c_str(), &hints, addresses.put()); error != 0)
    {
        throw Core::IOException(L"\"" + address + L"\" is no address to listen on",
                                static_cast<Core::SystemError>(error));
    }
    return addresses;
}

} // namespace

SocketLibrary::SocketLibrary()
{
    WSADATA data;
    if (const int error = WSAStartup(MAKEWORD(2, 2), &data); error != 0)
    {
        throw Core::IOException(L"Can't use sockets", static_cast<Core::SystemError>(error));
    }
}

SocketLibrary::~SocketLibrary()
{
    WSACleanup();
}

Listener::Listener(const std::wstring& address, unsigned short port, int backlog)
{
    const std::wstring portText = std::to_wstring(port);
    const auto demand = [&](bool done)
    {
        if (!done)
        {
            const auto error = static_cast<Core::SystemError>(WSAGetLastError());
            throw Core::IOException(L"Can't listen on " + address + L", port " + portText, error);
        }
    };

    const AddressList addresses = resolve(address, portText);
    const ADDRINFOW& local = *addresses.get();
    m_socket.reset(socket(local.ai_family, local.ai_socktype, local.ai_protocol));
    demand(static_cast<bool>(m_socket));
    // Without it another program of this machine may take over the port with SO_REUSEADDR.
    const BOOL exclusive = TRUE;
    demand(setsockopt(m_socket.get(), SOL_SOCKET, SO_EXCLUSIVEADDRUSE, reinterpret_cast<const char*>(&exclusive),
                      sizeof exclusive) == 0);
    demand(bind(m_socket.get(), local.ai_addr, static_cast<int>(local.ai_addrlen)) == 0);
    m_connection.reset(CreateEventW(nullptr, FALSE, FALSE, nullptr));
    demand(static_cast<bool>(m_connection));
    demand(WSAEventSelect(m_socket.get(), m_connection.get(), FD_ACCEPT) == 0);
    demand(listen(m_socket.get(), backlog) == 0);
}

bool Listener::answer(std::string_view text) noexcept
{
    const Socket connection(accept(m_socket.get(), nullptr, nullptr));
    if (!connection)
    {
        // A client that gave up before it was served is no reason to leave the others waiting.
        return WSAGetLastError() == WSAECONNRESET;
    }
    // The connection inherits the listener's non-blocking mode, so no client can hold up the service.
    send(connection.get(), text.data(), static_cast<int>(text.size()), 0);
    shutdown(connection.get(), SD_SEND);
    // Closing with input unread would reset the connection and might lose the answer.
    std::array<char, 512> input{};
    while (recv(connection.get(), input.data(), static_cast<int>(input.size()), 0) > 0)
    {
    }
    return true;
}

} // namespace StandIn
