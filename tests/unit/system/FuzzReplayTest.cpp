#include "checkConfiguration.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace
{

TEST(FuzzReplay, EveryConfigurationOfTheCorpusHoldsTheRules)
{
    int files = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(TM_CONFIGURATION_CORPUS))
    {
        if (!entry.is_regular_file())
        {
            continue;
        }
        SCOPED_TRACE(entry.path().filename());
        std::ifstream file(entry.path(), std::ios::binary);
        checkConfiguration(std::string(std::istreambuf_iterator<char>(file), {}));
        ++files;
    }
    EXPECT_GT(files, 100);
}

} // namespace
