#pragma once

#include "brimlow/database/Connection.h"
#include "brimlow/tessaro/ServerApplication.h"

#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

namespace Tessaro
{

// Reads applications with everything in them from a database, in the order in which they were added. Only names are
// stored; the paths are made here. A thing whose name is none for a file, which no version of the product writes, is
// passed over with all that is in it: a path is never made of it.
class ApplicationReader
{
  public:
    // folder is where the folders of the applications are.
    static std::vector<ServerApplication> readAll(const Database::Connection& connection, const Core::String& folder);
    // The application of that row; nothing when there is none.
    static std::optional<ServerApplication> readOne(const Database::Connection& connection, const Core::String& folder,
                                                    std::int64_t row);

  private:
    ApplicationReader(const Database::Connection& connection, const Core::String& folder,
                      std::optional<std::int64_t> only);

    void readApplications(const Core::String& folder);
    void readTemplates();
    void readFolders();
    void readFiles();
    void readUsers();

    template <class Use>
    void forEachRow(const char* select, const char* condition, const char* order, Use use);

    const Database::Connection& m_connection;
    // When only one application is read.
    const std::optional<std::int64_t> m_only;
    std::vector<ServerApplication> m_applications;
    // The fields of what was read, by row.
    std::unordered_map<std::int64_t, ServerApplication::Fields*> m_owners;
    std::unordered_map<std::int64_t, ResourcesFolder::Fields*> m_folders;
};

} // namespace Tessaro
