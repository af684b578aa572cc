// The built-in palettes: published end and middle colours, even lightness,
// and reversal.
#include <base/colour/NamedPalettes.h>
#include <base/framework/ColorRef.h>

#include <gtest/gtest.h>

namespace vex {
namespace {

COLORREF At(const DisplayPalette& p, int i) {
    const PALETTEENTRY& e = p.entries[static_cast<std::size_t>(i)];
    return RGB(e.peRed, e.peGreen, e.peBlue);
}

double Luminance(COLORREF c) {
    return 0.3 * GetRValue(c) + 0.59 * GetGValue(c) + 0.11 * GetBValue(c);
}

TEST(NamedPalettes, PublishedColoursAtTheEndsAndMiddle) {
    struct Case {
        const char16_t* name;
        int index;
        COLORREF color;
    };
    // viridis: matplotlib's published #440154, #21918c, #fde725; cividis:
    // #00204c and #ffe945; vik: dark blue #001261 and dark red #590008.
    const Case cases[] = {
        {u"viridis", 0, RGB(0x44, 0x01, 0x54)},   {u"viridis", 128, RGB(0x21, 0x91, 0x8C)},
        {u"VIRIDIS", 255, RGB(0xFD, 0xE7, 0x25)}, {u"cividis", 0, RGB(0x00, 0x20, 0x4C)},
        {u"cividis", 255, RGB(0xFF, 0xE9, 0x45)}, {u"vik", 0, RGB(0x00, 0x12, 0x61)},
        {u"vik", 255, RGB(0x59, 0x00, 0x08)},     {u"vik_r", 0, RGB(0x59, 0x00, 0x08)},
    };
    for (const Case& c : cases) {
        const auto palette = GetNamedPalette(c.name);
        ASSERT_TRUE(palette) << CString(c.name).ToUtf8();
        EXPECT_EQ(At(*palette, c.index), c.color) << CString(c.name).ToUtf8() << " " << c.index;
    }
    EXPECT_FALSE(GetNamedPalette(u"rainbow"));
    EXPECT_EQ(GetPaletteNames().size(), 3u);
}

TEST(NamedPalettes, LightnessRunsEvenly) {
    // viridis and cividis grow lighter at every step; vik is lightest in
    // the middle and darkens towards both ends.
    for (const char16_t* name : {u"viridis", u"cividis"}) {
        const auto p = GetNamedPalette(name);
        for (int i = 8; i < 256; i += 8) {
            EXPECT_GT(Luminance(At(*p, i)), Luminance(At(*p, i - 8))) << i;
        }
    }
    const auto vik = GetNamedPalette(u"vik");
    for (int i = 16; i <= 112; i += 16) {
        EXPECT_GT(Luminance(At(*vik, i)), Luminance(At(*vik, i - 16)));
        EXPECT_GT(Luminance(At(*vik, 255 - i)), Luminance(At(*vik, 255 - i + 16)));
    }
}

}  // namespace
}  // namespace vex
