#include <base/config/FileObject.h>

#include "ConfigTestSupport.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace vex {
namespace {

using test::Describe;
using test::Parse;

FileObject Parsed(const char* text) {
    FileObject file;
    EXPECT_TRUE(Parse(file, text)) << text;
    return file;
}

// The content without the checksum section, which differences leave alone.
FileObject WithoutChecksum(FileObject file) {
    file.DeleteSection(FileObject::CHECKSUM_SECTION);
    return file;
}

TEST(FileObjectDifference, DescribesAddedChangedAndRemovedKeysAndSections) {
    struct Case {
        const char* base;
        const char* target;
        const char* difference;  // as Describe writes it
    };
    const Case cases[] = {
        {"[A]\na=1\nb=2\n[B]\nx=1\n[E]\n[Checksum]\nChecksum=1\n",
         "[F]\n[A]\nc=4\nb=3\na=1\n[C]\ny=2\n[Checksum]\nChecksum=2\n",
         "[add.A]c=4;[change.A]b=3;[remove.B]x=1;[remove.E][add.F][add.C]y=2;"},
        // Emptying a section that stays: the keys go, then the section
        // comes back empty.
        {"[A]\na=1\nb=2\n", "[A]\n", "[remove.A]a=1;b=2;[add.A]"},
        {"[A]\n", "[A]\nk=v\n", "[add.A]k=v;"},
        // Translated texts change like any other value; names and keys
        // compare case-sensitively.
        {"[A]\n@tr.Title=Tiefe\nKey=1\n", "[A]\n@tr.Title=Depth\nkey=1\n",
         "[add.A]key=1;[change.A]@tr.Title=Depth;[remove.A]Key=1;"},
        {"[A]\nk=v\n", "[a]\nk=v\n", "[remove.A]k=v;[add.a]k=v;"},
        // Only the checksum sections differ: no difference at all.
        {"[A]\nk=v\n[Checksum]\nChecksum=1\n", "[Checksum]\nIntegrity=2\n[A]\nk=v\n", ""},
    };
    for (const Case& c : cases) {
        const FileObject base = Parsed(c.base);
        const FileObject target = Parsed(c.target);
        FileObject difference = Parsed("[stale]\nk=v\n");
        EXPECT_TRUE(base.GetDifference(target, difference));
        EXPECT_EQ(Describe(difference), c.difference) << c.base;
        EXPECT_EQ(base.HasDifferences(target), difference.GetNumSections() > 0) << c.base;

        FileObject patched = base;
        EXPECT_TRUE(patched.ApplyDifference(difference)) << c.base;
        EXPECT_EQ(WithoutChecksum(patched), WithoutChecksum(target)) << c.base;
        // The base's own checksum section is left as it was.
        EXPECT_EQ(patched.HasSection(u"Checksum"), base.HasSection(u"Checksum"));
    }
}

TEST(FileObjectDifference, ApplyingKeepsThePlacesOfExistingSectionsAndKeys) {
    FileObject file = Parsed("[A]\na=1\nb=2\n[B]\nx=1\n[C]\nz=1\n");
    FileObject difference;
    file.GetDifference(Parsed("[C]\nz=2\n[B]\nx=1\ny=2\n[A]\nb=2\n"), difference);
    EXPECT_TRUE(file.ApplyDifference(difference));
    EXPECT_EQ(Describe(file), "[A]b=2;[B]x=1;y=2;[C]z=2;");
}

TEST(FileObjectDifference, ApplyRejectsUnknownOperationsAndPassesOverTheChecksum) {
    const FileObject original = Parsed("[A]\nk=v\n[Checksum]\nChecksum=1\n");
    struct Case {
        const char* difference;
        bool ok;
        const char* result;  // Describe, which leaves out "Checksum"
    };
    const Case cases[] = {
        {"[add.A]\nn=1\n[patch.A]\nk=w\n", false, "[A]k=v;"},
        {"[A]\nk=w\n", false, "[A]k=v;"},
        {"[Add.A]\nk=w\n", false, "[A]k=v;"},
        {"[Checksum]\nk=w\n[add.Checksum]\nk=w\n[remove.Checksum]\nChecksum=1\n", true, "[A]k=v;"},
        // Section names may hold further full stops; removing a key or a
        // section that is not there changes nothing.
        {"[add.a.b]\nk=1\n[remove.A]\nmissing=1\n[remove.Z]\nk=1\n", true, "[A]k=v;[a.b]k=1;"},
        {"[change.New]\nk=1\n[remove.A]\nk=v\n", true, "[New]k=1;"},
    };
    for (const Case& c : cases) {
        FileObject file = original;
        EXPECT_EQ(file.ApplyDifference(Parsed(c.difference)), c.ok) << c.difference;
        EXPECT_EQ(file.GetErrorStatus(), c.ok ? 0 : 10) << c.difference;
        EXPECT_EQ(Describe(file), c.result) << c.difference;
        EXPECT_TRUE(file.HasKey(u"Checksum", u"Checksum"));
    }
    // An empty "remove." deletes the section only when it is empty.
    FileObject file = Parsed("[A]\nk=v\n[B]\n");
    EXPECT_TRUE(file.ApplyDifference(Parsed("[remove.A]\n[remove.B]\n")));
    EXPECT_EQ(Describe(file), "[A]k=v;");

    // A difference applied to itself works on a copy of itself: the later
    // step still removes k from "add.X" although the first one read it.
    FileObject self = Parsed("[add.X]\nk=1\n[remove.add.X]\nk=1\n");
    EXPECT_TRUE(self.ApplyDifference(self));
    EXPECT_EQ(Describe(self), "[remove.add.X]k=1;[X]k=1;");
}

TEST(FileObjectDifference, SectionIterationPassesOverTheChecksumSection) {
    const struct {
        const char* text;
        const char* described;
    } cases[] = {
        {"[Checksum]\nChecksum=1\n[A]\nk=v\n[B]\n", "[A]k=v;[B]"},
        {"[A]\n[Checksum]\n[B]\n", "[A][B]"},
        {"[A]\n[Checksum]\n", "[A]"},
        {"[Checksum]\nChecksum=1\n", ""},
        {"[checksum]\n", "[checksum]"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Describe(Parsed(c.text)), c.described) << c.text;
    EXPECT_EQ(FileObject::CHECKSUM_SECTION, CString(u"Checksum"));
}

// Builds a random object from small name sets, so that pairs share many
// sections and keys and hit every case: empty sections, empty values,
// "@tr." keys, a checksum section, and names that look like differences.
FileObject RandomObject(std::mt19937& random) {
    static const char16_t* const sections[] = {u"S0",       u"S1", u"S2",    u"S3",   u"S4",
                                               u"Checksum", u"",   u"add.S", u"a.b c"};
    static const char16_t* const keys[] = {u"k0",     u"k1",   u"k2", u"K0",
                                           u"@tr.k0", u"@tr.", u"",   u"Checksum"};
    static const char16_t* const values[] = {u"", u"v0", u"v1", u"V0", u"v0 "};
    auto pick = [&random](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    FileObject file;
    const int sectionCount = pick(7);
    for (int s = 0; s < sectionCount; ++s) {
        const CString section(sections[pick(9)]);
        file.CreateSection(section);
        const int keyCount = pick(5);
        for (int k = 0; k < keyCount; ++k)
            file.SetItem(section, CString(keys[pick(8)]), CString(values[pick(5)]), true);
    }
    return file;
}

TEST(FileObjectDifference, ApplyingTheDifferenceGivesTheTargetForRandomPairs) {
    // Order is not compared: operator== compares content, and applying a
    // difference appends new sections and keys rather than reproducing
    // the target's order.
    std::mt19937 random(20240611);
    int nonEmpty = 0;
    for (int round = 0; round < 3000; ++round) {
        const FileObject a = RandomObject(random);
        const FileObject b = RandomObject(random);
        FileObject difference;
        ASSERT_TRUE(a.GetDifference(b, difference));
        const bool differs = a.HasDifferences(b);
        ASSERT_EQ(differs, difference.GetNumSections() > 0) << round;
        ASSERT_FALSE(difference.HasSection(u"Checksum"));
        nonEmpty += differs ? 1 : 0;

        FileObject patched = a;
        ASSERT_TRUE(patched.ApplyDifference(difference)) << round;
        ASSERT_EQ(WithoutChecksum(patched), WithoutChecksum(b)) << round;
        ASSERT_FALSE(patched.HasDifferences(b)) << round;
        // The checksum section of the base is untouched.
        ASSERT_EQ(a.HasSection(u"Checksum"), patched.HasSection(u"Checksum"));

        // Empty sections of the difference survive a file: the saved
        // difference applies just the same.
        if (round % 10 == 0) {
            MemFile memory;
            ASSERT_TRUE(difference.FileSave(memory));
            FileObject reread;
            ASSERT_TRUE(memory.Seek(0, CFile::begin));
            if (difference.GetNumSections() > 0) {
                ASSERT_TRUE(reread.FileOpen(memory, u"difference.ini")) << round;
                FileObject again = a;
                ASSERT_TRUE(again.ApplyDifference(reread));
                // Values with a trailing space or an empty key do not
                // survive the file's text form; content equal otherwise.
                if (reread == difference) {
                    ASSERT_EQ(WithoutChecksum(again), WithoutChecksum(b));
                }
            }
        }
    }
    EXPECT_GT(nonEmpty, 2700);  // the generator makes real differences
}

}  // namespace
}  // namespace vex
