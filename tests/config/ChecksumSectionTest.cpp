#include <base/config/ChecksumSection.h>

#include <base/errors/GenericError.h>
#include <base/errors/GlobalErrorList.h>

#include "ConfigTestSupport.h"

#include <gtest/gtest.h>

namespace vex {
namespace {

using test::Parse;

using ChecksumSection = test::WithCleanErrorList;

FileObject Parsed(const char* text) {
    FileObject file;
    EXPECT_TRUE(Parse(file, text)) << text;
    return file;
}

// Expected values from Python: zlib.crc32 and a bitwise CRC-16/KERMIT over
// the canonical text "[GPS]\nPort=4001\n" and the longer one below.
TEST_F(ChecksumSection, ValuesFollowTheCanonicalText) {
    EXPECT_EQ(checksumKeys[0], CString(u"Checksum"));
    EXPECT_EQ(checksumKeys[1], CString(u"Integrity"));

    const ChecksumValues gps = ComputeChecksumValues(Parsed("[GPS]\nPort = 4001\n"));
    EXPECT_EQ(gps.checksum, CString(u"2EE21CEF"));
    EXPECT_EQ(gps.integrity, CString(u"1/1/D3EE"));

    // Two layouts of one content, with sections, keys, spacing, comments
    // and an old checksum section in other places.
    const char* first =
        "; vessel\r\n[Tide]\r\nStation = Hoek\r\nOffset = 0.12 // m\r\n\r\n"
        "[GPS]\r\nPort = 4001\r\nName = Gr\xC3\xBC"
        "n\r\n";
    const char* second =
        "[Checksum]\nChecksum=00000000\n[GPS]\nName=Gr\xC3\xBC"
        "n\nPort=4001\n; note\n"
        "[Tide]\nOffset=0.12\nStation  =  Hoek\n";
    const ChecksumValues a = ComputeChecksumValues(Parsed(first));
    const ChecksumValues b = ComputeChecksumValues(Parsed(second));
    // "[GPS]\nName=Grün\nPort=4001\n[Tide]\nOffset=0.12\nStation=Hoek\n"
    EXPECT_EQ(a.checksum, CString(u"3E7C669B"));
    EXPECT_EQ(a.integrity, CString(u"2/4/DF4D"));
    EXPECT_EQ(b.checksum, a.checksum);
    EXPECT_EQ(b.integrity, a.integrity);

    const ChecksumValues empty = ComputeChecksumValues(FileObject());
    EXPECT_EQ(empty.checksum, CString(u"00000000"));
    EXPECT_EQ(empty.integrity, CString(u"0/0/0000"));
}

TEST_F(ChecksumSection, WrittenSectionVerifiesAndAChangeFailsAndIsReported) {
    FileObject file = Parsed("[GPS]\nPort = 4001\n[Checksum]\nChecksum = old\nNote = kept\n");
    file.SetErrorContext(u"Vessel settings");
    WriteChecksumSection(file);
    EXPECT_EQ(test::Describe(file), "[GPS]Port=4001;");
    CString value;
    EXPECT_TRUE(file.GetItem(u"Checksum", u"Checksum", value));
    EXPECT_EQ(value, CString(u"2EE21CEF"));
    EXPECT_TRUE(file.GetItem(u"Checksum", u"Integrity", value));
    EXPECT_EQ(value, CString(u"1/1/D3EE"));
    EXPECT_TRUE(file.HasKey(u"Checksum", u"Note"));
    EXPECT_TRUE(VerifyChecksumSection(file));

    // Saved and read again, in another layout, it still verifies.
    MemFile memory;
    file.SetCompactMode(true);
    ASSERT_TRUE(file.FileSave(memory));
    FileObject reread = Parsed(test::TextOf(memory.Data()).c_str());
    EXPECT_TRUE(VerifyChecksumSection(reread));
    // Lower-case digits are the same number.
    reread.SetItem(u"Checksum", u"Checksum", u"2ee21cef", false);
    EXPECT_TRUE(VerifyChecksumSection(reread));
    EXPECT_EQ(GlobalErrorList::Get().NumErrors(true), 0);

    FileObject changed = file;
    changed.SetItem(u"GPS", u"Port", u"4002", false);
    FileObject added = file;
    added.SetItem(u"New", u"k", u"v", true);
    FileObject damaged = file;
    damaged.SetItem(u"Checksum", u"Integrity", u"1/1/D3EF", false);
    FileObject keyless = file;
    keyless.DeleteItem(u"Checksum", u"Integrity", false);
    GlobalErrorList& list = GlobalErrorList::Get();
    int reported = 0;
    for (FileObject* bad : {&changed, &added, &damaged, &keyless}) {
        EXPECT_FALSE(VerifyChecksumSection(*bad));
        list.SetContext(u"Vessel settings");
        EXPECT_EQ(list.NumErrors(), ++reported);
        const auto* error = dynamic_cast<const GenericError*>(list.Get(reported - 1));
        ASSERT_NE(error, nullptr);
        EXPECT_EQ(error->Type(), CString(u"Checksum Error"));
        EXPECT_EQ(error->Format(), CString(u"The checksum section of \"C:\\Vex\\test.ini\" does "
                                           u"not match its content."));
    }

    // No checksum section at all: false, and nothing reported.
    EXPECT_FALSE(VerifyChecksumSection(Parsed("[GPS]\nPort = 4001\n")));
    EXPECT_EQ(list.NumErrors(true), reported);
}

}  // namespace
}  // namespace vex
