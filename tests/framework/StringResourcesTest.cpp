#include <base/framework/StringResources.h>

#include <gtest/gtest.h>

namespace vex {
namespace {

TEST(StringResources, KnownNumbersGiveTheirTexts) {
    EXPECT_EQ(LoadStringResource(12034), CString(u"Unspecified Error"));
    EXPECT_EQ(LoadStringResource(12039), CString(u"Unknown"));
    EXPECT_EQ(LoadStringResource(12035), CString(u"Error opening \"%s\"."));
    EXPECT_EQ(LoadStringResource(12041),
              CString(u"The key \"%s\" could not be found in section \"%s\" of \"%s\"."));
    EXPECT_EQ(LoadStringResource(IDS_DEGREE_SIGN), CString(u"\u00B0"));
}

TEST(StringResources, UnknownNumberFailsAndLeavesTheTextUnchanged) {
    CString text(u"kept");
    EXPECT_FALSE(LoadStringResource(12038, text));
    EXPECT_FALSE(LoadStringResource(-1, text));
    EXPECT_EQ(text, CString(u"kept"));
    EXPECT_TRUE(LoadStringResource(99999).IsEmpty());
}

}  // namespace
}  // namespace vex
