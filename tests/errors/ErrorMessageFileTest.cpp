// Message templates from the error-message file, the translator hook, and
// the built-in texts when the file lacks a key.
#include "../common/TempFolder.h"

#include <base/errors/Errors.h>

#include <gtest/gtest.h>

#include <atomic>
#include <map>
#include <thread>
#include <vector>

namespace vex {
namespace {

// The message file is process-wide: each test closes it again.
class ErrorMessageFileTest : public ::testing::Test {
  protected:
    void SetUp() override {
        test::WriteBytes(folder.Path("ErrorMessages.ini"),
                         "; Vex error messages\r\n"
                         "[File Error]\r\n"
                         "Type = Dateifehler\r\n"
                         "Open = Kann \"%s\" nicht \xC3\xB6"
                         "ffnen.\r\n"
                         "[Dax Error]\r\n"
                         "Interpolate = Interpolation misslungen: %s\r\n"
                         "[FileObject Error]\r\n"
                         "KeyNotFound = %s fehlt in [%s] von %s.\r\n");
    }
    void TearDown() override {
        ErrorMessageFile::Get().Close();
        ErrorMessageFile::Get().SetTranslator(nullptr);
        GlobalErrorList::Get().Clear();
    }
    bool OpenMessages() { return ErrorMessageFile::Get().Open(folder.File("ErrorMessages.ini")); }

    test::TempFolder folder;
};

TEST_F(ErrorMessageFileTest, TemplatesComeFromTheFileElseTheBuiltInTexts) {
    ErrorMessageFile& messages = ErrorMessageFile::Get();
    EXPECT_FALSE(messages.IsOpen());
    ASSERT_TRUE(OpenMessages());
    EXPECT_TRUE(messages.IsOpen());
    CString text(u"unchanged");
    EXPECT_FALSE(messages.Get(u"File Error", u"Write", text));
    EXPECT_EQ(text, CString(u"unchanged"));

    struct Case {
        const Error& error;
        const char16_t* type;
        const char16_t* message;
    };
    const FileError open(u"C:\\Vex\\vex.ini", FileError::OPEN);
    const FileError read(u"C:\\Vex\\vex.ini", FileError::READ);
    const DaxError interpolate(u"tide", DaxError::INTERPOLATE, u"t.tid", true, 0.0);
    const DaxError extrapolate(u"tide", DaxError::EXTRAPOLATE, u"t.tid", true, 0.0);
    const FileObjectError key(u"GPS", u"Port", u"D:\\vessel.ini", FileObjectError::KEY_NOT_FOUND);
    const FileObjectError section(u"GPS", u"", u"D:\\vessel.ini",
                                  FileObjectError::SECTION_NOT_FOUND);
    for (const Case& c : {
             Case{open, u"Dateifehler", u"Kann \"vex.ini\" nicht \u00F6ffnen."},
             Case{read, u"Dateifehler", u"Error reading from \"vex.ini\"."},
             Case{interpolate, u"Dax Error", u"Interpolation misslungen: tide"},
             Case{extrapolate, u"Dax Error", u"Extrapolation error \"tide\"."},
             Case{key, u"FileObject Error", u"Port fehlt in [GPS] von vessel.ini."},
             Case{section, u"FileObject Error",
                  u"Section \"GPS\" could not be found in \"vessel.ini\"."},
         }) {
        EXPECT_EQ(c.error.Type(), CString(c.type)) << CString(c.message).ToUtf8();
        EXPECT_EQ(c.error.Format(), CString(c.message));
    }

    messages.Close();
    EXPECT_EQ(open.Format(), CString(u"Error opening \"vex.ini\"."));
}

TEST_F(ErrorMessageFileTest, AMissingFileIsReportedAndLeavesTheBuiltInTexts) {
    ASSERT_TRUE(OpenMessages());
    EXPECT_FALSE(ErrorMessageFile::Get().Open(folder.File("missing.ini")));
    EXPECT_FALSE(ErrorMessageFile::Get().IsOpen());
    EXPECT_EQ(FileError(u"a.ini", FileError::OPEN).Type(), CString(u"File Error"));
    GlobalErrorList::Get().SetContext(u"");
    ASSERT_EQ(GlobalErrorList::Get().NumErrors(), 1);
    EXPECT_EQ(GlobalErrorList::Get().Get(0)->Format(), CString(u"Error opening \"missing.ini\"."));
}

// Translates by a table; an empty translation keeps the text as read.
class TableTranslator : public Translator {
  public:
    explicit TableTranslator(bool active) : m_active(active) {}
    bool IsActive() const override { return m_active; }
    CString Translate(const CString& text) const override {
        ++calls;
        const auto it = m_table.find(text.ToUtf8());
        return it == m_table.end() ? CString() : CString::FromUtf8(it->second);
    }
    mutable std::atomic<int> calls{0};

  private:
    bool m_active;
    std::map<std::string, std::string> m_table{
        {"Kann \"%s\" nicht \xC3\xB6"
         "ffnen.",
         "Cannot open \"%s\"."},
        {"Interpolation misslungen: %s", "Interpolation failed: %s"},
    };
};

TEST_F(ErrorMessageFileTest, AnActiveTranslatorReplacesTheTextsReadFromTheFile) {
    ASSERT_TRUE(OpenMessages());
    const FileError open(u"C:\\Vex\\vex.ini", FileError::OPEN);
    const DaxError interpolate(u"tide", DaxError::INTERPOLATE, u"t.tid", true, 0.0);

    auto active = std::make_shared<TableTranslator>(true);
    ErrorMessageFile::Get().SetTranslator(active);
    EXPECT_EQ(open.Format(), CString(u"Cannot open \"vex.ini\"."));
    EXPECT_EQ(interpolate.Format(), CString(u"Interpolation failed: tide"));
    EXPECT_EQ(open.Type(), CString(u"Dateifehler"));  // no translation: kept
    // Built-in texts are not the file's and are not passed to it.
    const int calls = active->calls;
    EXPECT_EQ(FileError(u"x.ini", FileError::WRITE).Format(),
              CString(u"Error writing to \"x.ini\"."));
    EXPECT_EQ(active->calls, calls);

    auto inactive = std::make_shared<TableTranslator>(false);
    ErrorMessageFile::Get().SetTranslator(inactive);
    EXPECT_EQ(open.Format(), CString(u"Kann \"vex.ini\" nicht \u00F6ffnen."));
    EXPECT_EQ(inactive->calls, 0);

    ErrorMessageFile::Get().SetTranslator(nullptr);
    EXPECT_EQ(interpolate.Format(), CString(u"Interpolation misslungen: tide"));
}

// Run under ThreadSanitizer by the test script: errors are formatted on
// several threads while the file is reopened and the translator switched.
TEST_F(ErrorMessageFileTest, LookupsAreSafeWhileTheFileAndTranslatorChange) {
    ASSERT_TRUE(OpenMessages());
    std::atomic<bool> stop{false};
    std::vector<std::thread> readers;
    for (int t = 0; t < 3; ++t) {
        readers.emplace_back([&stop] {
            const FileError open(u"C:\\Vex\\vex.ini", FileError::OPEN);
            while (!stop) {
                const CString text = open.Format();
                EXPECT_TRUE(text == u"Kann \"vex.ini\" nicht \u00F6ffnen." ||
                            text == u"Cannot open \"vex.ini\"." ||
                            text == u"Error opening \"vex.ini\".")
                    << text.ToUtf8();
            }
        });
    }
    auto translator = std::make_shared<TableTranslator>(true);
    for (int i = 0; i < 50; ++i) {
        ErrorMessageFile::Get().SetTranslator(i % 2 ? translator : nullptr);
        if (i % 10 == 0) {
            ErrorMessageFile::Get().Close();
            OpenMessages();
        }
        std::this_thread::yield();
    }
    stop = true;
    for (auto& t : readers)
        t.join();
}

}  // namespace
}  // namespace vex
