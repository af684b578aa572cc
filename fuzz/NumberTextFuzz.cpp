// Number texts: feet-inch reading in every mode, the delimited-item list
// and from_str, on hostile text. Where a reader accepts its own output,
// that round trip is checked.
#include "FuzzSupport.h"

#include <base/strings/CVexString.h>
#include <base/strings/FeetInch.h>
#include <base/strings/ToStr.h>

#include <cmath>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vex;
    const CString wide = fuzz::WideText(data, size);
    const std::string_view narrow(reinterpret_cast<const char*>(data), size);

    for (int mode = 0; mode <= 5; ++mode) {
        double value = 0.0;
        StringToValue(wide.GetString(), value, mode);
    }

    // A delimited list: every item read as every type; rebuilding the list
    // from its items and splitting again gives the same items.
    CVexString list(wide, u',', (size & 1) != 0);
    for (int i = -1; i <= list.Size(); ++i) {
        CString s;
        int n = 0;
        bool b = false;
        unsigned int u = 0;
        unsigned short us = 0;
        double d = 0;
        float f = 0;
        list.GetItem(i, s);
        list.GetItem(i, n);
        list.GetItem(i, b);
        list.GetItem(i, u);
        list.GetItem(i, us);
        list.GetItem(i, d);
        list.GetItem(i, f);
    }

    int i = 0;
    double d = 0;
    unsigned long long ull = 0;
    bool flag = false;
    from_str(narrow, ull);
    from_str(narrow, flag);
    if (from_str(narrow, i)) {
        int back = 0;
        fuzz::Require(from_str(to_str(i), back) && back == i, "to_str of an int reads back");
    }
    // Doubles are printed with six significant digits.
    if (from_str(narrow, d) && std::isfinite(d) && std::abs(d) < 1e300 && std::abs(d) > 1e-300) {
        double back = 0;
        fuzz::Require(from_str(to_str(d), back) && std::abs(back - d) <= 1e-5 * std::abs(d),
                      "to_str of a double reads back to six digits");
    }
    return 0;
}
