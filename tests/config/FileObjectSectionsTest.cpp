// Sections, iteration, section handles, copies and comparison of the
// configuration file object.
#include "ConfigTestSupport.h"

#include <base/errors/FileObjectError.h>

#include <gtest/gtest.h>

#include <functional>
#include <sstream>

namespace vex {
namespace {

using test::Describe;
using test::Parse;

constexpr const char* kSample = "[A]\r\na=1\r\nb=2\r\n[B]\r\nc=3\r\n[C]\r\n";

TEST(FileObject, SectionOperationsKeepTheSectionOrder) {
    struct Case {
        const char* behaviour;
        std::function<bool(FileObject&)> change;
        bool result;
        std::string content;
    };
    const Case cases[] = {
        {"create appends an empty section", [](FileObject& f) { return f.CreateSection(u"D"); },
         true, "[A]a=1;b=2;[B]c=3;[C][D]"},
        {"create keeps an existing section", [](FileObject& f) { return f.CreateSection(u"A"); },
         true, "[A]a=1;b=2;[B]c=3;[C]"},
        {"create with clear empties it", [](FileObject& f) { return f.CreateSection(u"A", true); },
         true, "[A][B]c=3;[C]"},
        {"delete", [](FileObject& f) { return f.DeleteSection(u"B"); }, true, "[A]a=1;b=2;[C]"},
        {"delete, then create again at the end",
         [](FileObject& f) { return f.DeleteSection(u"A") && f.CreateSection(u"A"); }, true,
         "[B]c=3;[C][A]"},
        {"rename keeps the place", [](FileObject& f) { return f.RenameSection(u"A", u"Z"); }, true,
         "[Z]a=1;b=2;[B]c=3;[C]"},
        {"rename over an existing section replaces it",
         [](FileObject& f) { return f.RenameSection(u"C", u"A"); }, true, "[B]c=3;[A]"},
        {"rename to itself", [](FileObject& f) { return f.RenameSection(u"B", u"B"); }, true,
         "[A]a=1;b=2;[B]c=3;[C]"},
        {"delete the last item and the section",
         [](FileObject& f) { return f.DeleteItem(u"B", u"c", true); }, true, "[A]a=1;b=2;[C]"},
        {"delete the last item, keep the section",
         [](FileObject& f) { return f.DeleteItem(u"B", u"c", false); }, true, "[A]a=1;b=2;[B][C]"},
        {"delete an item, the rest keep their order",
         [](FileObject& f) { return f.DeleteItem(u"A", u"a") && f.SetItem(u"A", u"a", u"9"); },
         true, "[A]b=2;a=9;[B]c=3;[C]"},
        {"copy a section of this object",
         [](FileObject& f) { return f.CopySection(u"C", f, u"A"); }, true,
         "[A]a=1;b=2;[B]c=3;[C]a=1;b=2;"},
        {"copy over an existing section empties it first",
         [](FileObject& f) { return f.CopySection(u"B", f, u"A"); }, true,
         "[A]a=1;b=2;[B]a=1;b=2;[C]"},
        {"copy into a new section", [](FileObject& f) { return f.CopySection(u"N", f, u"B"); },
         true, "[A]a=1;b=2;[B]c=3;[C][N]c=3;"},
        {"copy a section onto itself", [](FileObject& f) { return f.CopySection(u"A", f); }, true,
         "[A]a=1;b=2;[B]c=3;[C]"},
        {"copy of a missing section changes nothing",
         [](FileObject& f) { return f.CopySection(u"A", f, u"X"); }, false,
         "[A]a=1;b=2;[B]c=3;[C]"},
    };
    for (const Case& c : cases) {
        FileObject file;
        ASSERT_TRUE(Parse(file, kSample));
        EXPECT_EQ(c.change(file), c.result) << c.behaviour;
        EXPECT_EQ(Describe(file), c.content) << c.behaviour;
    }

    FileObject file;
    ASSERT_TRUE(Parse(file, kSample));
    EXPECT_EQ(file.GetNumSections(), 3);
    EXPECT_EQ(file.GetNumItems(u"A"), 2);
    EXPECT_EQ(file.GetNumItems(u"C"), 0);
    EXPECT_TRUE(file.HasSection(u"C"));
    EXPECT_FALSE(file.HasSection(u"c"));
    EXPECT_TRUE(file.HasKey(u"A", u"b"));
    EXPECT_FALSE(file.HasKey(u"B", u"b"));
}

TEST(FileObject, CopySectionFromAnotherObjectReportsInTheSource) {
    FileObject source;
    ASSERT_TRUE(Parse(source, kSample));
    FileObject target;
    EXPECT_TRUE(target.CopySection(u"Copy", source, u"A"));
    EXPECT_EQ(Describe(target), "[Copy]a=1;b=2;");
    EXPECT_TRUE(target.CopySection(u"B", source));
    EXPECT_EQ(Describe(target), "[Copy]a=1;b=2;[B]c=3;");

    EXPECT_FALSE(target.CopySection(u"X", source, u"Missing"));
    EXPECT_EQ(source.GetErrorStatus(), 5);
    EXPECT_EQ(target.GetErrorStatus(), 5);
    source.ThrowExceptions(true);
    EXPECT_THROW(target.CopySection(u"X", source, u"Missing"), FileObjectError);
    EXPECT_EQ(Describe(target), "[Copy]a=1;b=2;[B]c=3;");
}

TEST(FileObject, IterationWalksSectionsAndItemsInOrder) {
    FileObject file;
    ASSERT_TRUE(Parse(file, "[Z]\r\nz=1\r\ny=2\r\nx=3\r\n[Y]\r\n[X]\r\nw=4\r\n"));
    CString names;
    FobjSection section;
    CString name;
    for (bool more = file.GetFirstSectionEntry(section, name); more;
         more = file.GetNextSectionEntry(section, name)) {
        names.AppendFormat(u"%s(%d)", name, section.GetCount());
        EXPECT_EQ(section.GetName(), name);
    }
    EXPECT_EQ(names, CString(u"Z(3)Y(0)X(1)"));

    FobjSection items;
    CString key;
    CString value;
    EXPECT_FALSE(file.GetFirstMapEntry(items, u"Y", key, value));  // empty: at the end at once
    EXPECT_EQ(file.GetErrorStatus(), 0);
    EXPECT_FALSE(FileObject().GetFirstSectionEntry(section, name));

    // Deleting the current item, or any other, while walking is safe.
    CString walked;
    for (bool more = file.GetFirstMapEntry(items, u"Z", key, value); more;
         more = file.GetNextMapEntry(items, key, value)) {
        walked += key;
        if (key == u"z") {
            file.DeleteItem(u"Z", u"z");
            file.DeleteItem(u"Z", u"y");
            file.SetItem(u"Z", u"v", u"5");
        }
    }
    EXPECT_EQ(walked, CString(u"zxv"));
    // Deleting the current section too.
    CString sections;
    for (bool more = file.GetFirstSectionEntry(section, name); more;
         more = file.GetNextSectionEntry(section, name)) {
        sections += name;
        file.DeleteSection(name);
    }
    EXPECT_EQ(sections, CString(u"ZYX"));
    EXPECT_EQ(file.GetNumSections(), 0);
}

TEST(FileObject, SectionHandlesShareTheSectionAndMayOutliveIt) {
    FobjSection kept;
    {
        FileObject file;
        ASSERT_TRUE(Parse(file, kSample));
        CString name;
        ASSERT_TRUE(file.GetFirstSectionEntry(kept, name));
        FobjSection copy = kept;
        EXPECT_TRUE(copy.SetAt(u"new", u"n"));  // visible through the object
        EXPECT_EQ(Describe(file), "[A]a=1;b=2;new=n;[B]c=3;[C]");
        file.SetItem(u"A", u"a", u"changed");  // visible through the handles
        CString value;
        EXPECT_TRUE(kept.Lookup(u"a", value));
        EXPECT_EQ(value, CString(u"changed"));

        EXPECT_TRUE(file.DeleteSection(copy, u"A"));
        EXPECT_FALSE(copy.IsValid());  // the handle given is released
        EXPECT_TRUE(kept.IsValid());   // others keep the section as it was
        EXPECT_FALSE(file.HasSection(u"A"));
    }
    EXPECT_EQ(kept.GetName(), CString(u"A"));
    EXPECT_EQ(kept.GetCount(), 3);
    EXPECT_TRUE(kept.SetAt(u"after", u"x"));
    kept.Release();
    EXPECT_EQ(kept.GetCount(), 0);
    CString value;
    EXPECT_FALSE(kept.Lookup(u"a", value));
    EXPECT_FALSE(kept.SetAt(u"a", u"b"));
}

// The protected section calls of derived file classes.
class SectionFile : public FileObject {
  public:
    using FileObject::CreateSection;
    using FileObject::SelectSection;
    using FileObject::SetSection;
};

TEST(FileObject, DerivedClassesWorkOnSectionsThroughHandles) {
    SectionFile file;
    ASSERT_TRUE(Parse(file, kSample));
    FobjSection handle;
    EXPECT_FALSE(file.SelectSection(handle, u"X"));
    EXPECT_EQ(file.GetErrorStatus(), 4);
    ASSERT_TRUE(file.SelectSection(handle, u"A"));
    EXPECT_EQ(handle.GetCount(), 2);

    // SetSection copies the handle's items into a section of this object.
    SectionFile other;
    EXPECT_TRUE(other.SetSection(handle, u"Copied"));
    EXPECT_EQ(handle.GetName(), CString(u"Copied"));
    handle.SetAt(u"c", u"3");
    EXPECT_EQ(Describe(other), "[Copied]a=1;b=2;c=3;");
    EXPECT_EQ(Describe(file), "[A]a=1;b=2;[B]c=3;[C]");
    FobjSection none;
    EXPECT_FALSE(other.SetSection(none, u"X"));

    FobjSection created;
    EXPECT_TRUE(file.CreateSection(created, u"B", true));
    EXPECT_EQ(created.GetCount(), 0);
    EXPECT_EQ(Describe(file), "[A]a=1;b=2;[B][C]");
}

TEST(FileObject, ComparesContentsNotOrderAndCopiesAreIndependent) {
    FileObject a;
    ASSERT_TRUE(Parse(a, "; header\r\n[A]\r\nx=1\r\ny=2\r\n[B]\r\n"));
    struct Case {
        const char* behaviour;
        std::string other;
        bool equal;
    };
    const Case cases[] = {
        {"same text", "; header\r\n[A]\r\nx=1\r\ny=2\r\n[B]\r\n", true},
        {"other order and extra lines", "[B]\r\n[A]\r\ny=2\r\nx=1\r\n", true},
        {"other value", "[A]\r\nx=1\r\ny=3\r\n[B]\r\n", false},
        {"other key", "[A]\r\nx=1\r\nY=2\r\n[B]\r\n", false},
        {"missing empty section", "[A]\r\nx=1\r\ny=2\r\n", false},
        {"one more item", "[A]\r\nx=1\r\ny=2\r\n[B]\r\nz=\r\n", false},
    };
    for (const Case& c : cases) {
        FileObject b;
        ASSERT_TRUE(Parse(b, c.other)) << c.behaviour;
        EXPECT_EQ(a == b, c.equal) << c.behaviour;
        EXPECT_EQ(b == a, c.equal) << c.behaviour;
        EXPECT_EQ(a != b, !c.equal) << c.behaviour;
    }

    FileObject copy(a);
    EXPECT_TRUE(copy == a);
    EXPECT_EQ(copy.GetFileName(), a.GetFileName());
    EXPECT_EQ(test::Extras(copy), "; header");
    copy.SetItem(u"A", u"x", u"changed");
    EXPECT_EQ(Describe(a), "[A]x=1;y=2;[B]");
    FileObject assigned;
    assigned = a;
    assigned.DeleteSection(u"A");
    EXPECT_EQ(Describe(a), "[A]x=1;y=2;[B]");
    FileObject moved(std::move(assigned));
    EXPECT_EQ(Describe(moved), "[B]");
}

TEST(FileObject, DumpShowsTheFileNameStatusAndText) {
    FileObject file;
    ASSERT_TRUE(Parse(file, "[A]\r\nk=v\r\n"));
    file.SetCompactMode(true);
    std::wostringstream out;
    file.dump(out);
    EXPECT_EQ(out.str(), L"FileObject \"C:\\Vex\\test.ini\": 1 sections, status 0\n[A]\nk=v\n");
}

}  // namespace
}  // namespace vex
