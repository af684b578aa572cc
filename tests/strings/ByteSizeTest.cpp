#include <base/strings/ByteSize.h>

#include "CStringPrinter.h"

#include <gtest/gtest.h>

namespace vex {
namespace {

TEST(ByteSize, UnitAndDecimalsFollowTheSize) {
    // Quotients by hand: 500 / 1024 = 0.49 and 10,239 / 1024 = 9.999 keep a
    // decimal, 10,240 / 1024 = 10 and 0 do not; 1,048,575 bytes are 1023.999
    // KB; 5 TB stay in GB.
    const struct {
        double bytes;
        const char16_t* text;
    } cases[] = {{0, u"0 KB"},
                 {500, u"0.5 KB"},
                 {10239, u"10.0 KB"},
                 {10240, u"10 KB"},
                 {20000, u"20 KB"},
                 {1048575, u"1024 KB"},
                 {1048576, u"1.0 MB"},
                 {15728640, u"15 MB"},
                 {1073741824, u"1.0 GB"},
                 {5497558138880.0, u"5120 GB"}};
    for (const auto& c : cases) {
        CString text = u"old";
        FormatByteSize(c.bytes, text);
        EXPECT_EQ(text, c.text) << c.bytes;
    }
    CString text;
    FormatByteSizeperSec(1536, text);
    EXPECT_EQ(text, u"1.5 KB/s");
}

}  // namespace
}  // namespace vex
