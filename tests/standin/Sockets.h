#pragma once

#include "Listener.h"

#include <string>

// Connects to the port on 127.0.0.1 and reads until the other side closes; empty when nobody listens.
std::string askPort(unsigned short port);

// A port of 127.0.0.1 that the test keeps to itself, or gives up to be free for the service.
class ReservedPort
{
  public:
    ReservedPort();

    unsigned short number() const noexcept { return m_number; }
    std::string text() const { return std::to_string(m_number); }
    void giveUp() noexcept { m_socket.reset(); }

  private:
    StandIn::SocketLibrary m_library;
    StandIn::Socket m_socket;
    unsigned short m_number = 0;
};
