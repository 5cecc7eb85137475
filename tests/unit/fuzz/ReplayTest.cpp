#include "targets.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace
{

class Replay : public testing::TestWithParam<FuzzTarget>
{
};

// A check ends the process where a rule is broken.
TEST_P(Replay, EveryFileOfTheCorpusHoldsTheRules)
{
    int files = 0;
    const std::filesystem::path corpus = std::filesystem::path(TM_CORPORA) / GetParam().name / "corpus";
    for (const auto& entry : std::filesystem::recursive_directory_iterator(corpus))
    {
        if (entry.is_regular_file())
        {
            std::ifstream file(entry.path(), std::ios::binary);
            GetParam().check(std::string(std::istreambuf_iterator<char>(file), {}));
            ++files;
        }
    }
    EXPECT_GT(files, 5);
}

INSTANTIATE_TEST_SUITE_P(Fuzz, Replay, testing::ValuesIn(fuzzTargets().begin(), fuzzTargets().end()),
                         [](const auto& target) { return std::string(target.param.name); });

} // namespace
