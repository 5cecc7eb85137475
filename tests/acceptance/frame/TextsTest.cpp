#include "frame/ModuleResource.h"

#include <gtest/gtest.h>

#include <map>

namespace Acceptance
{
namespace
{

// The others' commands are not explained in the status bar.
// Proves: the text 209, "1.0", is used by nothing.
TEST(Texts, areTheseFive)
{
    const std::map<UINT, std::wstring> expected{
        {207, L"Manages Brimlow KV Tessaro"}, {208, L"Brimlow"},           {209, L"1.0"},
        {1002, L"Start the service"},         {1003, L"Stop the service"},
    };
    const ModuleResource module;
    std::map<UINT, std::wstring> found;
    for (UINT id = 0; id < 1100; ++id)
    {
        const std::wstring text = module.text(id);
        if (!text.empty())
        {
            found[id] = text;
        }
    }
    EXPECT_EQ(expected, found);
}

} // namespace
} // namespace Acceptance
