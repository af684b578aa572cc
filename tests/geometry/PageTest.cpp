#include <base/geometry/Page.h>

#include <gtest/gtest.h>

namespace vex {
namespace {

TEST(Page, EmptyOnlyWhenBothEdgePairsAreReversed) {
    struct Case {
        Page page;
        double width, height;
        bool empty;
    };
    const Case cases[] = {
        {Page(), -2, -2, true},                    // the state extents start from
        {Page(0, 600, 800, 0), 800, -600, false},  // a screen window, stored bottom second
        {Page(5, 0, 1, 10), -4, 10, false},        // reversed in x only
        {Page(0, 0, 0, 0), 0, 0, false},           // a single point is not empty
        {Page(1000, 5000, 1400, 5200), 400, 200, false},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.page.Width(), c.width);
        EXPECT_EQ(c.page.Height(), c.height);
        EXPECT_EQ(c.page.IsEmpty(), c.empty) << c.page.x1 << " " << c.page.y1;
    }
    EXPECT_EQ(Page(), Page(1, 1, -1, -1));
    EXPECT_NE(Page(0, 0, 1, 1), Page(0, 0, 1, 2));
}

}  // namespace
}  // namespace vex
