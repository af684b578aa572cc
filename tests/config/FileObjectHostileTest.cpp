// Input no settings file should hold: binary garbage, huge lines, huge
// numbers of sections. Each gives a defined result, never a crash.
#include "ConfigTestSupport.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace vex {
namespace {

using test::Parse;

// Parses the saved text of file again.
bool Reparse(const FileObject& file, FileObject& again) {
    MemFile saved;
    EXPECT_TRUE(file.FileSave(saved));
    saved.SeekToBegin();
    return again.FileOpen(saved, u"again.ini");
}

TEST(FileObject, BinaryGarbageGivesADefinedResult) {
    std::mt19937 random(7);
    // Bytes that mean something to the syntax come often.
    const std::string syntax = "[]=;/\\\r\n \t\xEF\xBB\xBF\xC3\x80";
    for (int round = 0; round < 40; ++round) {
        std::string bytes(16 * 1024, '\0');
        for (char& b : bytes) {
            const unsigned r = random();
            b = (r & 1u) ? syntax[(r >> 1) % syntax.size()] : static_cast<char>(r >> 8);
        }
        FileObject file;
        const bool opened = Parse(file, bytes);
        EXPECT_EQ(file.GetErrorStatus(), opened ? 0 : 2) << round;
        EXPECT_EQ(opened, file.GetNumSections() > 0) << round;
        FileObject again;
        EXPECT_EQ(Reparse(file, again), opened) << round;
    }
}

TEST(FileObject, NulCharactersSurviveSavingAndReading) {
    FileObject file;
    file.SetItem(CString(std::u16string(u"S\0", 2)), CString(std::u16string(u"k\0k", 3)),
                 CString(std::u16string(u"\0v", 2)));
    FileObject again;
    ASSERT_TRUE(Reparse(file, again));
    EXPECT_TRUE(again == file);
}

// The one large case: a line of 100 MB.
TEST(FileObject, AHundredMegabyteLineIsReadWhole) {
    constexpr std::size_t kLength = 100u * 1024u * 1024u;
    std::string bytes = "[S]\r\nk = ";
    bytes.append(kLength, 'x');
    bytes += "\r\nnext = 1\r\n";
    FileObject file;
    ASSERT_TRUE(Parse(file, bytes));
    bytes = std::string();
    CString value;
    ASSERT_TRUE(file.GetItem(u"S", u"k", value));
    EXPECT_EQ(static_cast<std::size_t>(value.GetLength()), kLength);
    EXPECT_EQ(value.GetAt(static_cast<int>(kLength) - 1), u'x');
    EXPECT_TRUE(file.GetItem(u"S", u"next", value));
    EXPECT_EQ(value, CString(u"1"));
}

TEST(FileObject, AMillionSectionsAreRead) {
    constexpr int kSections = 1000000;
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(kSections) * 13);
    char header[32];
    for (int i = 0; i < kSections; ++i) {
        std::snprintf(header, sizeof header, "[S%07d]\r\n", i);
        bytes += header;
    }
    bytes += "k=v\r\n";
    FileObject file;
    ASSERT_TRUE(Parse(file, bytes));
    EXPECT_EQ(file.GetNumSections(), kSections);
    EXPECT_TRUE(file.HasKey(u"S0999999", u"k"));
    EXPECT_EQ(file.GetNumItems(u"S0000000"), 0);
    FobjSection section;
    CString name;
    ASSERT_TRUE(file.GetFirstSectionEntry(section, name));
    EXPECT_EQ(name, CString(u"S0000000"));
}

}  // namespace
}  // namespace vex
