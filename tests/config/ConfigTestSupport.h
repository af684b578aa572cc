// ConfigTestSupport.h - helpers of the configuration tests: parse bytes
// through a memory file, and describe an object's content through its
// iteration calls (independently of the writer).
#pragma once

#include <base/config/FileObject.h>
#include <base/errors/GlobalErrorList.h>
#include <base/framework/MemFile.h>

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace vex::test {

inline std::vector<std::byte> BytesOf(std::string_view text) {
    const auto* begin = reinterpret_cast<const std::byte*>(text.data());
    return std::vector<std::byte>(begin, begin + text.size());
}

inline std::string TextOf(std::span<const std::byte> bytes) {
    return std::string(reinterpret_cast<const char*>(bytes.data()), bytes.size());
}

// Parses bytes as the content of a file named C:\Vex\test.ini.
inline bool Parse(FileObject& file, std::string_view bytes) {
    MemFile memory(BytesOf(bytes));
    return file.FileOpen(memory, u"C:\\Vex\\test.ini");
}

// "[A]k=v;k2=v2;[B]" in UTF-8: sections in order, each with its items.
inline std::string Describe(const FileObject& file) {
    std::string text;
    FobjSection sections;
    CString name;
    for (bool more = file.GetFirstSectionEntry(sections, name); more;
         more = file.GetNextSectionEntry(sections, name)) {
        text.append("[").append(name.ToUtf8()).append("]");
        FobjSection items;
        CString key;
        CString value;
        for (bool item = file.GetFirstMapEntry(items, name, key, value); item;
             item = file.GetNextMapEntry(items, key, value)) {
            text.append(key.ToUtf8()).append("=").append(value.ToUtf8()).append(";");
        }
    }
    return text;
}

// The extra lines joined by "|", in UTF-8.
inline std::string Extras(const FileObject& file) {
    std::string text;
    const std::vector<CString>& lines = file.GetExtraInfo();
    for (std::size_t i = 0; i < lines.size(); ++i)
        text.append(i > 0 ? "|" : "").append(lines[i].ToUtf8());
    return text;
}

// A test that reads what was reported: the global error list starts and
// ends empty, in the general context.
class WithCleanErrorList : public ::testing::Test {
  protected:
    void SetUp() override { Reset(); }
    void TearDown() override { Reset(); }
    static void Reset() {
        GlobalErrorList::Get().Clear();
        GlobalErrorList::Get().SetContext(u"");
    }
};

}  // namespace vex::test
