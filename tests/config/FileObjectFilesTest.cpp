// Opening and saving configuration files on disk and through streams, and
// how their failures are reported.
#include "ConfigTestSupport.h"

#include "../common/TempFolder.h"

#include <base/errors/FileError.h>
#include <base/errors/GlobalErrorList.h>

#include <gtest/gtest.h>

#include <random>
#include <stdexcept>

namespace vex {
namespace {

using namespace std::string_literals;
using test::Describe;
using test::ReadBytes;
using test::TempFolder;
using test::WriteBytes;

// The global error list starts empty in the general context.
class FileObjectFiles : public test::WithCleanErrorList {
  protected:
    // The one error in context, which must be a FileError.
    static const FileError* OnlyFileError(const CString& context) {
        GlobalErrorList& list = GlobalErrorList::Get();
        list.SetContext(context);
        EXPECT_EQ(list.NumErrors(), 1);
        return list.NumErrors() == 1 ? dynamic_cast<const FileError*>(list.Get(0)) : nullptr;
    }
    TempFolder folder;
};

FileObject Sample() {
    FileObject file;
    EXPECT_TRUE(test::Parse(file, "; Vex settings\r\n\r\n[A]\r\nk=v\r\nx=1\r\n[B]\r\n"));
    return file;
}

// Also the writer's layouts, normal and compact, by the bytes it writes.
TEST_F(FileObjectFiles, AnUnchangedFileInTheLibrarysLayoutSavesByteForByte) {
    const std::string layouts[] = {
        "; Vex settings\r\n;\r\n\r\n[General]\r\nPort = 4001\r\nUnit = m\xC2\xB2\r\n\r\n"
        "[Empty]\r\n\r\n[Offsets]\r\nGPS.X = -1.5\r\nName = a=b\r\n\r\n",
        "[General]\r\nPort=4001\r\n[Offsets]\r\nGPS.X=-1.5\r\n",
    };
    for (const std::string& bytes : layouts) {
        WriteBytes(folder.Path("vex.ini"), bytes);
        FileObject file;
        file.SetCompactMode(bytes.find(" = ") == std::string::npos);
        ASSERT_TRUE(file.FileOpen(folder.File("vex.ini")));
        EXPECT_TRUE(file.FileInitialised());
        EXPECT_EQ(file.GetFileName(), folder.File("vex.ini"));
        ASSERT_TRUE(file.FileSave());  // to the stored name
        EXPECT_EQ(ReadBytes(folder.Path("vex.ini")), bytes);
        EXPECT_EQ(folder.Names(), std::set<std::string>{"vex.ini"});  // no temporary left
    }
}

// Random objects survive a save and a read, for values the syntax can hold:
// no white space at either end, no "//", no backslash at the end.
TEST_F(FileObjectFiles, ReadAfterWriteGivesAnEqualObject) {
    std::mt19937 random(20240611);
    const std::u16string keyChars = u"abcXYZ019.-_\u00E4\u4E2D";
    const std::u16string valueChars = u"abcXYZ019 .-_=;[]\u00B0\u00E4\u4E2D";
    const auto text = [&](const std::u16string& chars, int maxLength) {
        std::u16string s;
        const int length = 1 + static_cast<int>(random() % static_cast<unsigned>(maxLength));
        for (int i = 0; i < length; ++i)
            s.push_back(chars[random() % chars.size()]);
        return CString(s).Trim();
    };
    for (int round = 0; round < 20; ++round) {
        FileObject file;
        const int sections = 1 + static_cast<int>(random() % 5);
        for (int s = 0; s < sections; ++s) {
            const CString section = text(keyChars, 8);
            file.CreateSection(section);
            const int items = static_cast<int>(random() % 6);
            for (int i = 0; i < items; ++i)
                file.SetItem(section, text(keyChars, 10), text(valueChars, 20));
        }
        file.SetCompactMode(round % 2 == 1);
        ASSERT_TRUE(file.FileSave(folder.File("random.ini")));
        FileObject read;
        ASSERT_TRUE(read.FileOpen(folder.File("random.ini")));
        EXPECT_TRUE(read == file) << ReadBytes(folder.Path("random.ini"));
        EXPECT_EQ(Describe(read), Describe(file));
    }
}

TEST_F(FileObjectFiles, OpeningWithCreateEmptiesTheFileAndTheObject) {
    WriteBytes(folder.Path("old.ini"), "[A]\r\nk=v\r\n");
    struct Case {
        const char* name;
        unsigned flags;
    };
    for (const Case& c : {Case{"old.ini", CFile::modeCreate | CFile::modeWrite},
                          Case{"new.ini", CFile::modeCreate | CFile::modeReadWrite}}) {
        FileObject file = Sample();
        EXPECT_TRUE(file.FileOpen(folder.File(c.name), c.flags)) << c.name;
        EXPECT_TRUE(file.FileInitialised()) << c.name;
        EXPECT_EQ(file.GetNumSections(), 0) << c.name;
        EXPECT_TRUE(file.GetExtraInfo().empty()) << c.name;
        EXPECT_EQ(file.GetFileName(), folder.File(c.name)) << c.name;
        EXPECT_EQ(ReadBytes(folder.Path(c.name)), "") << c.name;
    }
}

TEST_F(FileObjectFiles, AFileThatCannotBeOpenedIsReportedUnderTheErrorContext) {
    FileObject file = Sample();
    file.SetErrorContext(u"Vessel settings");
    EXPECT_EQ(file.GetErrorContext(), CString(u"Vessel settings"));
    const CString missing = folder.File("missing.ini");
    EXPECT_FALSE(file.FileOpen(missing));
    EXPECT_EQ(file.GetErrorStatus(), 9);
    EXPECT_FALSE(file.FileInitialised());
    EXPECT_EQ(file.GetNumSections(), 0);
    EXPECT_TRUE(file.GetFileName().IsEmpty());

    const FileError* error = OnlyFileError(u"Vessel settings");
    ASSERT_NE(error, nullptr);
    EXPECT_EQ(error->Code(), FileError::OPEN);
    EXPECT_EQ(error->FileName(), missing);
    EXPECT_NE(error->GetID(), 0u);
    EXPECT_EQ(error->Format(), CString(u"Error opening \"missing.ini\"."));
    EXPECT_EQ(GlobalErrorList::Get().NumErrors(true), 1);

    // A folder is no file either.
    EXPECT_FALSE(file.FileOpen(CString(folder.Path().u16string())));
    EXPECT_EQ(file.GetErrorStatus(), 9);
}

TEST_F(FileObjectFiles, AFailedSaveIsReportedAndLeavesTheOldFile) {
    const FileObject file = Sample();
    FileObject reporting = Sample();
    reporting.SetErrorContext(u"Settings");

    // Without create, the file must exist.
    EXPECT_FALSE(reporting.FileSave(folder.File("absent.ini"), CFile::modeWrite));
    EXPECT_EQ(reporting.GetErrorStatus(), 9);
    EXPECT_TRUE(folder.Names().empty());
    const FileError* error = OnlyFileError(u"Settings");
    ASSERT_NE(error, nullptr);
    EXPECT_EQ(error->Code(), FileError::WRITE);
    EXPECT_EQ(error->FileName(), folder.File("absent.ini"));
    Reset();

    // A missing folder.
    EXPECT_FALSE(reporting.FileSave(folder.File("no-folder/vex.ini")));
    EXPECT_EQ(reporting.GetErrorStatus(), 9);
    ASSERT_NE(OnlyFileError(u"Settings"), nullptr);
    Reset();

    // The old file stays when the new content cannot be written: a name so
    // long that the temporary file beside it exceeds the 255 characters a
    // file name may have.
    const std::string longName = std::string(240, 'n') + ".ini";
    WriteBytes(folder.Path(longName), "[Old]\r\n");
    if (ReadBytes(folder.Path(longName)) != "[Old]\r\n") GTEST_SKIP() << "long names unsupported";
    EXPECT_FALSE(file.FileSave(folder.File(longName)));
    EXPECT_EQ(file.GetErrorStatus(), 9);
    EXPECT_EQ(ReadBytes(folder.Path(longName)), "[Old]\r\n");
    EXPECT_EQ(folder.Names(), (std::set<std::string>{longName}));
    ASSERT_NE(OnlyFileError(u""), nullptr);
}

TEST_F(FileObjectFiles, OpeningWithoutCloseAddsToTheContentOrChangesNothing) {
    WriteBytes(folder.Path("base.ini"), "; base\r\n[A]\r\na=1\r\n[B]\r\nb=1\r\n");
    WriteBytes(folder.Path("more.ini"), "; more\r\n[B]\r\nb=2\r\nc=3\r\n[C]\r\n");
    WriteBytes(folder.Path("none.ini"), "; nothing\r\n");
    FileObject file;
    ASSERT_TRUE(file.FileOpen(folder.File("base.ini")));
    FobjSection b;
    CString name;
    ASSERT_TRUE(file.GetFirstSectionEntry(b, name));
    ASSERT_TRUE(file.GetNextSectionEntry(b, name));
    ASSERT_EQ(name, CString(u"B"));

    // Failures: a missing file, a file without sections.
    for (const char* failing : {"missing.ini", "none.ini"}) {
        EXPECT_FALSE(file.FileOpen_NoFileClose(folder.File(failing))) << failing;
        EXPECT_EQ(Describe(file), "[A]a=1;[B]b=1;") << failing;
        EXPECT_EQ(test::Extras(file), "; base") << failing;
        EXPECT_EQ(file.GetFileName(), folder.File("base.ini")) << failing;
        EXPECT_TRUE(file.FileInitialised()) << failing;
    }
    // The handle is still on the object's section B.
    b.SetAt(u"h", u"x");
    EXPECT_EQ(Describe(file), "[A]a=1;[B]b=1;h=x;");

    EXPECT_TRUE(file.FileOpen_NoFileClose(folder.File("more.ini")));
    EXPECT_EQ(Describe(file), "[A]a=1;[B]b=2;h=x;c=3;[C]");
    EXPECT_EQ(test::Extras(file), "; base|; more");
    EXPECT_EQ(file.GetFileName(), folder.File("more.ini"));

    FileObject closed;
    ASSERT_TRUE(closed.FileOpen(folder.File("base.ini")));
    EXPECT_FALSE(closed.FileOpen(folder.File("none.ini")));
    EXPECT_EQ(closed.GetNumSections(), 0);
    EXPECT_EQ(test::Extras(closed), "; nothing");
    closed.FileClose();
    EXPECT_TRUE(closed.GetExtraInfo().empty());
    EXPECT_TRUE(closed.GetFileName().IsEmpty());
}

// A derived file that accepts only files with a section "Vex" and throws
// for a section "Throw".
class CheckedFile : public FileObject {
  public:
    int checks = 0;

  protected:
    bool AfterFileOpen() override {
        ++checks;
        if (HasSection(u"Throw")) throw std::runtime_error("rejected");
        return GetNumSections() == 0 || HasSection(u"Vex");
    }
};

TEST_F(FileObjectFiles, AfterFileOpenDecidesAndExceptionsRestoreTheObject) {
    WriteBytes(folder.Path("good.ini"), "[Vex]\r\nk=v\r\n");
    WriteBytes(folder.Path("bad.ini"), "[Other]\r\nk=v\r\n");
    WriteBytes(folder.Path("throw.ini"), "[Throw]\r\n");
    CheckedFile file;
    EXPECT_FALSE(file.FileOpen(folder.File("bad.ini")));
    EXPECT_FALSE(file.FileInitialised());
    EXPECT_TRUE(file.FileOpen(folder.File("new.ini"), CFile::modeCreate | CFile::modeWrite));
    EXPECT_TRUE(file.FileOpen(folder.File("good.ini")));
    EXPECT_EQ(file.checks, 3);

    EXPECT_THROW(file.FileOpen_NoFileClose(folder.File("throw.ini")), std::runtime_error);
    EXPECT_EQ(Describe(file), "[Vex]k=v;");
    EXPECT_EQ(file.GetFileName(), folder.File("good.ini"));
    // Close-before-open is back in force: FileClose empties the object.
    file.FileClose();
    EXPECT_EQ(file.GetNumSections(), 0);
    EXPECT_FALSE(file.FileInitialised());
}

TEST_F(FileObjectFiles, ReadsAndWritesThroughStreams) {
    const FileObject file = Sample();

    CStdioFile text;
    ASSERT_TRUE(text.Open(folder.File("stdio.ini"), CFile::modeCreate | CFile::modeReadWrite));
    EXPECT_TRUE(file.FileSave(text));
    ASSERT_TRUE(text.SeekToBegin());
    FileObject fromText;
    EXPECT_TRUE(fromText.Read(text));
    EXPECT_TRUE(fromText == file);
    EXPECT_TRUE(fromText.FileInitialised());
    EXPECT_TRUE(text.Close());

    MemFile memory;
    EXPECT_TRUE(file.FileSave(memory));
    const std::string normal = "; Vex settings\r\n\r\n[A]\r\nk = v\r\nx = 1\r\n\r\n[B]\r\n\r\n";
    EXPECT_EQ(test::TextOf(memory.Data()), normal);
    memory.SeekToBegin();
    FileObject fromMemory;
    EXPECT_TRUE(fromMemory.FileOpen(memory, u"D:\\memory.ini"));
    EXPECT_EQ(fromMemory.GetFileName(), CString(u"D:\\memory.ini"));
    EXPECT_EQ(fromMemory.GetFileTitle(), CString(u"memory.ini"));
    EXPECT_TRUE(fromMemory == file);

    MemFile archived;
    {
        CArchive store(archived, CArchive::store);
        EXPECT_TRUE(file.Write(store));
    }
    EXPECT_EQ(test::TextOf(archived.Data()), normal);
    archived.SeekToBegin();
    CArchive load(archived, CArchive::load);
    FileObject fromArchive;
    EXPECT_TRUE(fromArchive.Read(load));
    EXPECT_TRUE(fromArchive == file);

    // Character buffers get LF line ends, narrow or UTF-16.
    CharBuffer narrow;
    EXPECT_TRUE(file.FileSave(narrow, textencoding::multibyte));
    EXPECT_EQ(test::TextOf(narrow.Bytes()), "; Vex settings\n\n[A]\nk = v\nx = 1\n\n[B]\n\n");
    CharBuffer wide;
    EXPECT_TRUE(file.FileSave(wide, textencoding::unicode));
    ASSERT_EQ(wide.GetSize(), 2 * narrow.GetSize());
    EXPECT_EQ(test::TextOf(wide.Bytes()).substr(0, 6), std::string("\x3B\0\x20\0V\0", 6));
}

TEST_F(FileObjectFiles, EncryptedAndMarkedFilesOnDisk) {
    // What follows "[Encrypted]" is not read, whatever its bytes.
    WriteBytes(folder.Path("secret.ini"), "[Encrypted]\r\n\x93\x00\xFF=\x01[X]\r\n"s);
    FileObject secret;
    EXPECT_TRUE(secret.FileOpen(folder.File("secret.ini")));
    EXPECT_EQ(Describe(secret), "[Encrypted]");

    // A byte-order mark reads as U+FEFF, and is written back as it was.
    const std::string marked = "\xEF\xBB\xBF[A]\r\nk = v\r\n\r\n[B]\r\nl = w\r\n\r\n";
    WriteBytes(folder.Path("marked.ini"), marked);
    FileObject file;
    ASSERT_TRUE(file.FileOpen(folder.File("marked.ini")));
    EXPECT_EQ(Describe(file), "[B]l=w;");
    ASSERT_EQ(file.GetExtraInfo().size(), 3u);
    EXPECT_EQ(file.GetExtraInfo()[0], CString(u"\uFEFF[A]"));
    ASSERT_TRUE(file.FileSave());
    EXPECT_EQ(ReadBytes(folder.Path("marked.ini")), marked);
}

class OpeningFile : public FileObject {
  public:
    using FileObject::open;
};

TEST_F(FileObjectFiles, OpenFailsWithoutReportingAndMapsShareFlags) {
    OpeningFile file;
    EXPECT_EQ(file.open(u"", CFile::modeRead), nullptr);
    EXPECT_EQ(file.GetErrorStatus(), 8);
    EXPECT_EQ(file.open(folder.File("none.ini"), CFile::modeRead), nullptr);
    EXPECT_EQ(file.GetErrorStatus(), 9);
    EXPECT_EQ(GlobalErrorList::Get().NumErrors(true), 0);  // reporting is FileOpen's

    struct Share {
        unsigned flags;
        int mode;
    };
    for (const Share& s : {Share{CFile::shareCompat, 0x10}, Share{CFile::shareExclusive, 0x10},
                           Share{CFile::shareDenyWrite, 0x20}, Share{CFile::shareDenyRead, 0x30},
                           Share{CFile::shareDenyNone | CFile::modeCreate, 0x40}}) {
        EXPECT_EQ(FileObject::shflags(s.flags), s.mode) << s.flags;
    }
}

// The writer narrows ASCII in blocks and encodes the rest: values with
// non-ASCII text, LF and surrogate pairs at every place relative to a block
// must come out as their UTF-8 with CR LF, and read back the same.
TEST_F(FileObjectFiles, WritesAnyTextAsUtf8WithCrLf) {
    const std::u16string pieces[] = {u"\u00E9", u"\u20AC", u"\U0001F30A", u"\n", u"x"};
    FileObject file;
    std::string expected = "[S]\r\n";
    for (int at = 0; at < 40; ++at) {
        for (int i = 0; i < 5; ++i) {
            std::u16string value(static_cast<std::size_t>(at), u'a');
            value += pieces[i];
            value += std::u16string(static_cast<std::size_t>(at % 7), u'b');
            CString key;
            key.Format(u"k%d_%d", at, i);
            ASSERT_TRUE(file.SetItem(u"S", key, CString(value), true));
            std::string line = key.ToUtf8() + " = " + CString(value).ToUtf8();
            for (std::size_t lf = line.find('\n'); lf != std::string::npos;
                 lf = line.find('\n', lf + 2))
                line.insert(lf, "\r");
            expected += line + "\r\n";
        }
    }
    expected += "\r\n";
    MemFile memory;
    ASSERT_TRUE(file.FileSave(memory));
    EXPECT_EQ(test::TextOf(memory.Data()), expected);
    ASSERT_TRUE(file.FileSave(folder.File("text.ini")));
    EXPECT_EQ(test::ReadBytes(folder.Path("text.ini")), expected);
}

}  // namespace
}  // namespace vex
