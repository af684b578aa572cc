#include <base/strings/FileNameText.h>

namespace vex {
namespace {

constexpr char16_t kInvalidChars[] = u"\\/:*?\"<>|";

}  // namespace

CString CreateValidFileName(const CString& name) {
    CString valid = name;
    for (char16_t& c : valid.Str()) {
        if (std::u16string_view(kInvalidChars).find(c) != std::u16string_view::npos) c = u'_';
    }
    return valid;
}

bool AllValidFileSystemChars(const CString& name) {
    return name.FindOneOf(kInvalidChars) < 0;
}

}  // namespace vex
