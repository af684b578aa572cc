#include <base/errors/Errors.h>

#include <gtest/gtest.h>

#include <limits>
#include <set>
#include <string>

namespace vex {
namespace {

TEST(Error, IdsAreUniqueAndNeverZeroEvenWhenTheCounterWraps) {
    std::set<unsigned long long> ids;
    for (int i = 0; i < 100; ++i)
        ids.insert(GenericError().GetID());
    EXPECT_EQ(ids.size(), 100u);
    EXPECT_EQ(ids.count(0), 0u);

    Error::g_ErrorID = std::numeric_limits<unsigned long long>::max() - 1;
    EXPECT_EQ(Error::NextID(), std::numeric_limits<unsigned long long>::max());
    EXPECT_EQ(Error::NextID(), 1u);  // 0 is skipped
}

TEST(Error, CopiesKeepIdentityAndOwnTheirCauses) {
    GenericError outer(u"Survey stopped");
    outer.SetSeverity(Error::SEVERITY_CRITICAL);
    outer.SetSounding(true);
    outer.AddCause(FileError(u"C:\\data\\tide.tid", FileError::READ));
    std::unique_ptr<Error> copy(outer.Copy());
    outer.ClearCauses();

    EXPECT_EQ(copy->GetID(), outer.GetID());
    EXPECT_EQ(copy->GetSeverity(), Error::SEVERITY_CRITICAL);
    EXPECT_TRUE(copy->IsSounding());
    EXPECT_TRUE(copy->IsShowAlertWnd());
    ASSERT_EQ(copy->NumCauses(), 1);
    EXPECT_EQ(copy->GetCause(0)->Format(), CString(u"Error reading from \"tide.tid\"."));
    EXPECT_EQ(copy->GetCause(1), nullptr);
    EXPECT_EQ(copy->GetCause(-1), nullptr);
    EXPECT_EQ(copy->Format(), CString(u"Survey stopped"));
}

// Expected signatures: Python's zlib.crc32 over the same bytes, complemented
// (the signature is the raw register, without the final inversion).
TEST(Error, SignaturesAreTheRawCrcOfTheirFields) {
    EXPECT_EQ(GenericError(u"Pump stalled", u"rpm 0", u"Pump").Signature(), 0x52906341u);
    EXPECT_EQ(FileError(u"C:\\data\\tide.tid", FileError::OPEN).Signature(), 0x46c6c0efu);
    // Only the low byte of each code unit counts: U+0141 has low byte 'A'.
    EXPECT_EQ(GenericError(u"\u0141").Signature(), GenericError(u"A").Signature());
}

TEST(Error, TypesAndMessagesWithoutAMessageFile) {
    EXPECT_EQ(GenericError(u"x").Type(), CString(u"General Error"));
    EXPECT_EQ(GenericError(u"x", u"", u"Pump").Type(), CString(u"Pump"));
    EXPECT_EQ(FileError(u"a.ini", FileError::OPEN).Type(), CString(u"File Error"));
    EXPECT_EQ(DaxError(u"s", 1, u"f", false, 0).Type(), CString(u"Dax Error"));

    struct Case {
        FileError::CODE code;
        const char16_t* message;
    };
    for (const Case& c : {Case{FileError::OPEN, u"Error opening \"vex.ini\"."},
                          Case{FileError::READ, u"Error reading from \"vex.ini\"."},
                          Case{FileError::WRITE, u"Error writing to \"vex.ini\"."}}) {
        EXPECT_EQ(FileError(u"D:\\Vex\\vex.ini", c.code).Format(), CString(c.message));
    }
}

TEST(DaxError, TheLastCodeBitSetChoosesTheMessage) {
    struct Case {
        unsigned code;
        const char16_t* message;
    };
    for (const Case& c :
         {Case{1, u"Interpolation error \"tide\"."}, Case{2, u"Extrapolation error \"tide\"."},
          Case{1 | 4, u"Error reading from \"tide\"."},
          Case{1 | 2 | 8, u"Computation failed \"tide\"."}, Case{0, u"Unspecified Error"}}) {
        EXPECT_EQ(DaxError(u"tide", c.code, u"t.tid", true, 0).Format(), CString(c.message))
            << c.code;
    }
    EXPECT_EQ(DaxError(u"s", 1, u"t.tid", true, 1.5).Details().Left(10), CString(u"Start On  "));
    EXPECT_EQ(DaxError(u"s", 1, u"t.tid", false, 1.5).Details().Left(10), CString(u"Start Off "));
}

TEST(FileObjectError, MessagesNameSectionKeyAndFileTitle) {
    EXPECT_EQ(
        FileObjectError(u"Offsets", u"", u"C:\\Vex\\vessel.ini", FileObjectError::SECTION_NOT_FOUND)
            .Format(),
        CString(u"Section \"Offsets\" could not be found in \"vessel.ini\"."));
    EXPECT_EQ(
        FileObjectError(u"Offsets", u"GPS.X", u"C:\\Vex\\vessel.ini",
                        FileObjectError::KEY_NOT_FOUND)
            .Format(),
        CString(u"The key \"GPS.X\" could not be found in section \"Offsets\" of \"vessel.ini\"."));
}

TEST(ErrorString, EmptyMeansSuccess) {
    ErrorString::ResetLastError();
    const ErrorString ok(true);
    EXPECT_TRUE(static_cast<bool>(ok));
    EXPECT_FALSE(!ok);
    EXPECT_TRUE(ErrorString::LastError().Text().IsEmpty());

    const ErrorString failed(false);
    EXPECT_FALSE(static_cast<bool>(failed));
    EXPECT_TRUE(!failed);
    EXPECT_EQ(failed.Text(), CString(u"Unspecified Error"));
    EXPECT_EQ(ErrorString::LastError().Text(), CString(u"Unspecified Error"));

    ErrorString built(true);
    built << u"Tide file " << CString(u"t.tid") << ErrorString(u" is empty");
    EXPECT_EQ(CString(built.c_str()), CString(u"Tide file t.tid is empty"));
    EXPECT_EQ(ErrorString(12035).Text(), CString(u"Error opening \"%s\"."));
    ErrorString::ResetLastError();
    EXPECT_TRUE(ErrorString::LastError().Text().IsEmpty());
}

// A function returning ErrorString may return a resource number or a text;
// neither may come back as success.
ErrorString ReturnResource() {
    return 12035;
}
ErrorString ReturnWide() {
    return L"Cannot open";
}
ErrorString ReturnFalse() {
    return false;
}

TEST(ErrorString, ReturnedNumbersAndTextsStayFailures) {
    EXPECT_EQ(ReturnResource().Text(), CString(u"Error opening \"%s\"."));
    const ErrorString failed = ReturnWide();
    EXPECT_FALSE(static_cast<bool>(failed));
    const std::wstring& wide = failed;
    EXPECT_EQ(wide, L"Cannot open");
    EXPECT_EQ(ReturnFalse().Text(), CString(u"Unspecified Error"));
}

}  // namespace
}  // namespace vex
