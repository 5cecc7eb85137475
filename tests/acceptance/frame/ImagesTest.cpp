#include "frame/ModuleResource.h"
#include "kit/ConsoleTest.h"

namespace Acceptance
{
namespace
{

struct Picture
{
    int resource;
    int width;
    int height;
    int bitsPerPixel; // 0: any
};

void PrintTo(const Picture& picture, std::ostream* out)
{
    *out << "bitmap " << picture.resource;
}

class Pictures : public ConsoleTest, public testing::WithParamInterface<Picture>
{
};

TEST_P(Pictures, haveTheirSizeAndDepth)
{
    const ModuleResource module;
    const auto header = module.read<BITMAPINFOHEADER>(GetParam().resource, RT_BITMAP);
    EXPECT_EQ(GetParam().width, header.biWidth);
    EXPECT_EQ(GetParam().height, header.biHeight);
    if (GetParam().bitsPerPixel != 0)
    {
        EXPECT_EQ(GetParam().bitsPerPixel, header.biBitCount);
    }
}

INSTANTIATE_TEST_SUITE_P(All, Pictures,
                         testing::Values(Picture{203, 24 * 16, 16, 8}, Picture{204, 24 * 32, 32, 24},
                                         Picture{212, 16, 16, 0}, Picture{213, 32, 32, 0}, Picture{214, 32, 16, 4}));

using Toolbar214 = ConsoleTest;

TEST_F(Toolbar214, isInTheStandardLayout)
{
    const ModuleResource module;
    const std::vector<WORD> expected{1, 16, 16, 2, 1002, 1003};
    EXPECT_EQ(expected, module.words(214, MAKEINTRESOURCEW(241)));
}

TEST_F(Toolbar214, theIconOfTheSnapInIsThere)
{
    const ModuleResource module;
    const auto count = module.words(210, RT_GROUP_ICON);
    ASSERT_LE(3u, count.size());
    EXPECT_EQ(1, count[1]) << "not an icon";
    EXPECT_LE(1, count[2]) << "no image in it";
}

} // namespace
} // namespace Acceptance
