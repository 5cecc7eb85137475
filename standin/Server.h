#pragma once

#include "Listener.h"
#include "LogWriter.h"
#include "ServerSettings.h"

#include <optional>
#include <vector>

namespace StandIn
{

// What the stand-in does while it runs: answers every connection to the configured port with one line.
class Server
{
  public:
    // Opens the log, unless the level is none, and listens. Throws what LogWriter and Listener throw; what Listener
    // throws is logged as well.
    explicit Server(const ServerSettings& settings);
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;
    ~Server();

    // Serves until one of the events is set. Throws Core::IOException when Windows does not let it wait.
    void serve(std::vector<HANDLE> until);

  private:
    void listen(const ServerSettings& settings);
    void log(LogLevel level, const std::wstring& text) noexcept;

    LogLevel m_logLevel;
    std::optional<LogWriter> m_log;
    std::optional<Listener> m_listener;
};

} // namespace StandIn
