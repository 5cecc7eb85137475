#include "TemporaryFolder.h"
#include "checkDatabase.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace
{

TEST(DatabaseReplay, EveryDatabaseOfTheCorpusHoldsTheRules)
{
    const TemporaryFolder disk;
    int files = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(TM_DATABASE_CORPUS))
    {
        if (!entry.is_regular_file())
        {
            continue;
        }
        SCOPED_TRACE(entry.path().filename());
        std::ifstream file(entry.path(), std::ios::binary);
        checkDatabase(disk.path(L"Any.db"), std::string(std::istreambuf_iterator<char>(file), {}));
        ++files;
    }
    EXPECT_GT(files, 15);
}

} // namespace
