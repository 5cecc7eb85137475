#pragma once

#include <filesystem>

namespace Hostile
{

// The files of a server with something of everything: they are made once, put aside, and put back as often as wanted.
class Server
{
  public:
    // Takes away what there is of a server before.
    Server();
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;
    // Leaves no server.
    ~Server();

    // As it was at first.
    void restore() const;

  private:
    std::filesystem::path m_aside;
};

} // namespace Hostile
