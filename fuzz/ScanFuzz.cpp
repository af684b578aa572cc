// The scanner on hostile input text (the formats are the library's own, as
// callers write them): every conversion into every kind of target, wide and
// narrow, never reads or writes out of bounds.
#include "FuzzSupport.h"

#include <base/framework/Scan.h>

#include <array>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vex;
    if (size == 0) {
        return 0;
    }
    static constexpr std::array<const char16_t*, 10> formats = {
        u"%d,%d,%d", u"%lf %lf %lf", u"%hu.%hu.%hu.%hu", u"%I64d %I64u %I64X",
        u"%x %o %i", u"%s %s",       u"%3d%2c%5s",       u"%[^,],%[0-9]",
        u"%g%%%e",   u"%u %ld %lu",
    };
    const std::u16string_view format = formats[data[0] % formats.size()];
    const CString wide = fuzz::WideText(data + 1, size - 1);
    const std::string narrow(reinterpret_cast<const char*>(data + 1), size - 1);

    int i1 = 0, i2 = 0, i3 = 0;
    double d1 = 0, d2 = 0, d3 = 0;
    unsigned short h[4] = {};
    long long ll = 0;
    unsigned long long ull1 = 0, ull2 = 0;
    char16_t s1[8] = {}, s2[8] = {};
    char c2[2] = {};
    std::u16string_view text = wide.GetString();
    switch (data[0] % formats.size()) {
        case 0:
            Scan(text, format, &i1, &i2, &i3);
            break;
        case 1:
            Scan(text, format, &d1, &d2, &d3);
            break;
        case 2:
            Scan(text, format, &h[0], &h[1], &h[2], &h[3]);
            break;
        case 3:
            Scan(text, format, &ll, &ull1, &ull2);
            break;
        case 4:
            Scan(text, format, &i1, &i2, &i3);
            break;
        case 5:
            Scan(text, format, s1, s2);
            break;
        case 6:
            Scan(text, format, &i1, c2, s1);
            break;
        case 7:
            Scan(text, format, s1, s2);
            break;
        case 8:
            Scan(text, format, &d1, &d2);
            break;
        default: {
            unsigned u = 0;
            long l = 0;
            unsigned long ul = 0;
            Scan(text, format, &u, &l, &ul);
        }
    }
    // The same on narrow text in the active code page.
    char n1[8] = {}, n2[8] = {};
    Scan(narrow, "%d,%lf,%7s,%[^;];%c", &i1, &d1, n1, n2, &c2[0]);
    return 0;
}
