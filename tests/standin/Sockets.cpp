#include "Sockets.h"

#include <array>
#include <stdexcept>

namespace
{

sockaddr_in loopback(unsigned short port)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(port);
    return address;
}

} // namespace

std::string askPort(unsigned short port)
{
    const StandIn::SocketLibrary library;
    const StandIn::Socket connection(socket(AF_INET, SOCK_STREAM, IPPROTO_TCP));
    const DWORD timeout = 10'000;
    setsockopt(connection.get(), SOL_SOCKET, SO_RCVTIMEO, reinterpret_cast<const char*>(&timeout), sizeof timeout);
    const sockaddr_in address = loopback(port);
    if (connect(connection.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
    {
        return {};
    }
    std::string answer;
    std::array<char, 64> part{};
    for (int length = 0; (length = recv(connection.get(), part.data(), static_cast<int>(part.size()), 0)) > 0;)
    {
        answer.append(part.data(), static_cast<std::size_t>(length));
    }
    return answer;
}

ReservedPort::ReservedPort() : m_socket(socket(AF_INET, SOCK_STREAM, IPPROTO_TCP))
{
    sockaddr_in address = loopback(0);
    int length = sizeof address;
    const BOOL exclusive = TRUE;
    setsockopt(m_socket.get(), SOL_SOCKET, SO_EXCLUSIVEADDRUSE, reinterpret_cast<const char*>(&exclusive),
               sizeof exclusive);
    if (bind(m_socket.get(), reinterpret_cast<const sockaddr*>(&address), length) != 0 ||
        listen(m_socket.get(), 1) != 0 ||
        getsockname(m_socket.get(), reinterpret_cast<sockaddr*>(&address), &length) != 0)
    {
        throw std::runtime_error("no free port");
    }
    m_number = ntohs(address.sin_port);
}
