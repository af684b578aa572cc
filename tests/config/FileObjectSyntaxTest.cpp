// How the text of a configuration file is read: comments, continuation
// lines, headers, key lines, and the lines before the first section.
#include "ConfigTestSupport.h"

#include <gtest/gtest.h>

namespace vex {
namespace {

using test::Describe;
using test::Extras;
using test::Parse;

enum Options { kNone = 0, kNoEndLineComment = 1, kNoContinuation = 2 };

struct SyntaxCase {
    const char* behaviour;
    std::string input;
    int options;
    bool opened;
    std::string content;  // as Describe gives it
    std::string extras;   // as Extras gives it
};

TEST(FileObject, ReadsTheLineSyntax) {
    const SyntaxCase cases[] = {
        {"key lines", "[General]\r\nPort = 4001\r\nName=Survey 1\r\n", kNone, true,
         "[General]Port=4001;Name=Survey 1;", ""},
        {"LF line ends", "[A]\nk=v\nl=w", kNone, true, "[A]k=v;l=w;", ""},
        {"a CR alone ends no line", "[A]\rk=v\r\n", kNone, true, "[A]", ""},
        {"end-of-line comment", "[A]\r\nkey = a // b\r\n", kNone, true, "[A]key=a;", ""},
        {"no end-of-line comments", "[A]\r\nkey = a // b\r\n", kNoEndLineComment, true,
         "[A]key=a // b;", ""},
        {"// inside a value is a comment too", "[A]\r\nurl = http://host\r\n", kNone, true,
         "[A]url=http:;", ""},
        {"continuation joins without separator", "[A]\r\nkey = one \\\r\ntwo\r\n", kNone, true,
         "[A]key=onetwo;", ""},
        {"no continuation: the backslash stays, the next line is ignored",
         "[A]\r\nkey = one \\\r\ntwo\r\n", kNoContinuation, true, "[A]key=one \\;", ""},
        {"a comment line drops a continued entry", "[A]\r\na = one \\\r\n; note\r\nb = 2\r\n",
         kNone, true, "[A]b=2;", ""},
        {"a value ending in a backslash swallows the next line",
         "[A]\r\nFolder = C:\\Data\\\r\nx = 1\r\n", kNone, true, "[A]Folder=C:\\Datax = 1;", ""},
        {"continuation after the comment is cut", "[A]\r\na = one \\ // note\r\n  two\r\n", kNone,
         true, "[A]a=one  two;", ""},
        {"a continuation at the end of the input still counts", "[A]\r\na = 1 \\", kNone, true,
         "[A]a=1;", ""},
        {"header names are trimmed", "[ Name ]\r\nk=v\r\n", kNone, true, "[Name]k=v;", ""},
        {"a header without ] is unnamed", "[Name\r\nk=v\r\n", kNone, true, "[]k=v;", ""},
        {"a header name runs to the last ]", "[a]b] tail\r\n", kNone, true, "[a]b]", ""},
        {"a header with a comment", "[A] // x\r\nk=v\r\n", kNone, true, "[A]k=v;", ""},
        {"a continued header", "[Na\\\r\nme]\r\nk=v\r\n", kNone, true, "[Name]k=v;", ""},
        {"lines without a key are ignored; a key ends at the first =",
         "[A]\r\n=value\r\nnovalue\r\na=b=c\r\n  = x\r\n", kNone, true, "[A]a=b=c;", ""},
        {"keys and values are trimmed of spaces and tabs",
         "[A]\r\n\t key \t=\t value with  spaces \t\r\n", kNone, true, "[A]key=value with  spaces;",
         ""},
        {"an empty value", "[A]\r\nk =\r\n", kNone, true, "[A]k=;", ""},
        {"only a ; in the first column starts a comment", "[A]\r\n  ;k = v\r\n", kNone, true,
         "[A];k=v;", ""},
        {"blank lines and comments in sections are dropped", "[A]\r\n\r\n; c\r\nk=v\r\n\r\n", kNone,
         true, "[A]k=v;", ""},
        {"a repeated header continues the section; a repeated key keeps its place",
         "[A]\r\nx=1\r\ny=2\r\n[B]\r\nz=3\r\n[A]\r\nx=4\r\nw=5\r\n", kNone, true,
         "[A]x=4;y=2;w=5;[B]z=3;", ""},
        {"keys and sections are case-sensitive", "[A]\r\nKey=1\r\nkey=2\r\n[a]\r\n", kNone, true,
         "[A]Key=1;key=2;[a]", ""},
        {"lines before the first section are kept verbatim",
         "; Vex settings\r\n\r\n  // generated\r\nloose = text\r\n[A]\r\nk=v\r\n", kNone, true,
         "[A]k=v;", "; Vex settings||  // generated|loose = text"},
        {"continued lines before the first section are kept one by one",
         "note \\\r\nmore\r\n[A]\r\n", kNone, true, "[A]", "note \\|more"},
        {"[Encrypted] ends the read", "[A]\r\nk=v\r\n[Encrypted]\r\n\x01\x02x=1\r\n[B]\r\n", kNone,
         true, "[A]k=v;[Encrypted]", ""},
        {"only comments and blank lines", "; a\r\n\r\n", kNone, false, "", "; a|"},
        {"an empty file", "", kNone, false, "", ""},
    };
    for (const SyntaxCase& c : cases) {
        FileObject file;
        file.SetNoEndLineComment((c.options & kNoEndLineComment) != 0);
        file.SetNoContinuation((c.options & kNoContinuation) != 0);
        EXPECT_EQ(Parse(file, c.input), c.opened) << c.behaviour;
        EXPECT_EQ(file.GetErrorStatus(), c.opened ? 0 : 2) << c.behaviour;
        EXPECT_EQ(file.FileInitialised(), c.opened) << c.behaviour;
        EXPECT_EQ(Describe(file), c.content) << c.behaviour;
        EXPECT_EQ(Extras(file), c.extras) << c.behaviour;
    }
}

// The reader decodes UTF-8; what is not UTF-8 becomes U+FFFD, NUL
// characters are kept, and a byte-order mark is an ordinary character.
TEST(FileObject, DecodesUtf8AndKeepsOddCharacters) {
    struct Case {
        const char* behaviour;
        std::string input;
        std::u16string section;
        std::u16string key;
        std::u16string value;
    };
    const Case cases[] = {
        {"UTF-8", "[Tiefe]\r\nEinheit = m\xC2\xB2\r\n", u"Tiefe", u"Einheit", u"m\u00B2"},
        {"invalid UTF-8", "[S]\r\nk = \xFF\xFE a \xC3\r\n", u"S", u"k", u"\uFFFD\uFFFD a \uFFFD"},
        {"NUL characters", std::string("[A\0B]\r\nk\0 = v\0w\r\n", 18), std::u16string(u"A\0B", 3),
         std::u16string(u"k\0", 2), std::u16string(u"v\0w", 3)},
    };
    for (const Case& c : cases) {
        FileObject file;
        ASSERT_TRUE(Parse(file, c.input)) << c.behaviour;
        CString value;
        EXPECT_TRUE(file.GetItem(CString(c.section), CString(c.key), value)) << c.behaviour;
        EXPECT_EQ(value, CString(c.value)) << c.behaviour;
    }

    // A marked file: the mark makes the first header an ordinary line.
    FileObject marked;
    ASSERT_TRUE(Parse(marked, "\xEF\xBB\xBF[A]\r\nk=v\r\n[B]\r\nl=w\r\n"));
    EXPECT_EQ(Describe(marked), "[B]l=w;");
    EXPECT_EQ(Extras(marked), "\xEF\xBB\xBF[A]|k=v");
}

}  // namespace
}  // namespace vex
