#pragma once

#include <winsock2.h>

#include <platform/handles.h>

#include <string>
#include <string_view>

namespace StandIn
{

// The system's socket library, for as long as the object lives.
class SocketLibrary
{
  public:
    // Throws Core::IOException.
    SocketLibrary();
    SocketLibrary(const SocketLibrary&) = delete;
    SocketLibrary& operator=(const SocketLibrary&) = delete;
    ~SocketLibrary();
};

struct SocketTraits
{
    using Handle = SOCKET;
    static Handle none() noexcept { return INVALID_SOCKET; }
    static void close(Handle handle) noexcept { closesocket(handle); }
};

using Socket = platform::Owner<SocketTraits>;

// A TCP port that is listened on.
class Listener
{
  public:
    // address is a numeric IPv4 or IPv6 address. Throws Core::IOException naming address and port when the address is
    // none of this machine's, or the port is taken.
    Listener(const std::wstring& address, unsigned short port, int backlog);

    // Set when a connection may be waiting; it resets itself when a wait ends.
    HANDLE connectionEvent() const noexcept { return m_connection.get(); }

    // Takes one waiting connection, sends it the text and closes it. Returns false when none is waiting.
    bool answer(std::string_view text) noexcept;

  private:
    SocketLibrary m_library;
    Socket m_socket;
    platform::KernelHandle m_connection;
};

} // namespace StandIn
