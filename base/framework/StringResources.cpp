#include <base/framework/StringResources.h>

#include <algorithm>
#include <iterator>

namespace vex {
namespace {

struct Resource {
    int id;
    const char16_t* text;
};

// Sorted by number for the binary search below.
constexpr Resource kResources[] = {
    {IDS_DAX_INTERPOLATE, u"Interpolation error \"%s\"."},
    {IDS_DAX_EXTRAPOLATE, u"Extrapolation error \"%s\"."},
    {IDS_DAX_READ, u"Error reading from \"%s\"."},
    {IDS_DAX_COMPUTATION, u"Computation failed \"%s\"."},
    {IDS_UNSPECIFIED_ERROR, u"Unspecified Error"},
    {IDS_FILE_OPEN, u"Error opening \"%s\"."},
    {IDS_FILE_READ, u"Error reading from \"%s\"."},
    {IDS_FILE_WRITE, u"Error writing to \"%s\"."},
    {IDS_UNKNOWN, u"Unknown"},
    {IDS_SECTION_NOT_FOUND, u"Section \"%s\" could not be found in \"%s\"."},
    {IDS_KEY_NOT_FOUND, u"The key \"%s\" could not be found in section \"%s\" of \"%s\"."},
    {IDS_VALUE_NOT_CONVERTED,
     u"The value of key \"%s\" in section \"%s\" of \"%s\" is not of the expected type."},
    {IDS_DEGREE_SIGN, u"\u00B0"},
};

static_assert(std::is_sorted(std::begin(kResources), std::end(kResources),
                             [](const Resource& a, const Resource& b) { return a.id < b.id; }));

}  // namespace

bool LoadStringResource(int id, CString& text) {
    const auto* it = std::lower_bound(std::begin(kResources), std::end(kResources), id,
                                      [](const Resource& r, int key) { return r.id < key; });
    if (it == std::end(kResources) || it->id != id) return false;
    text = it->text;
    return true;
}

CString LoadStringResource(int id) {
    CString text;
    LoadStringResource(id, text);
    return text;
}

}  // namespace vex
