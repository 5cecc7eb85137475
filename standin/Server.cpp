#include "Server.h"

#include <brimlow/system/Exception.h>

namespace StandIn
{

namespace
{

constexpr char greeting[] = "KV Tessaro stand-in\r\n";

} // namespace

Server::Server(const ServerSettings& settings) : m_logLevel(settings.logLevel)
{
    if (m_logLevel != LogLevel::none)
    {
        m_log.emplace(settings.logFolder);
    }
    listen(settings);
}

Server::~Server()
{
    log(LogLevel::normal, L"Information Stopped");
}

void Server::serve(std::vector<HANDLE> until)
{
    until.push_back(m_listener->connectionEvent());
    const auto count = static_cast<DWORD>(until.size());
    for (;;)
    {
        const DWORD signalled = WaitForMultipleObjects(count, until.data(), FALSE, INFINITE);
        if (signalled == WAIT_FAILED)
        {
            throw Core::IOException(L"Can't wait for connections", GetLastError());
        }
        if (signalled != WAIT_OBJECT_0 + count - 1)
        {
            return;
        }
        while (m_listener->answer(greeting))
        {
            log(LogLevel::all, L"Trace Answered a connection");
        }
    }
}

void Server::listen(const ServerSettings& settings)
{
    try
    {
        m_listener.emplace(settings.address, settings.port, settings.backlog);
    }
    catch (const Core::Exception& exception)
    {
        log(LogLevel::normal, L"Error " + exception.getMessage().str());
        throw;
    }
    log(LogLevel::normal, L"Information Listening on " + settings.address + L", port " +
                              std::to_wstring(settings.port) + L", backlog " + std::to_wstring(settings.backlog));
}

void Server::log(LogLevel level, const std::wstring& text) noexcept
{
    if (m_log && level <= m_logLevel)
    {
        m_log->write(text);
    }
}

} // namespace StandIn
