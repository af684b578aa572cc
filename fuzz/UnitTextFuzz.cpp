// Unit texts typed into dialogs: every display format and feet mode reads
// any text without harm, and a value written by the library in a unit reads
// back close to itself.
#include "FuzzSupport.h"

#include <base/units/StaticFormats.h>
#include <base/units/UnitText.h>

#include <cmath>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vex;
    if (size < 2) return 0;
    const int formatId = data[0] % 16;
    SetFeetInputMode(data[1] % 6);
    SetFeetDisplayMode(0);
    const CString text = fuzz::WideText(data + 2, size - 2);
    double value = 0.0;
    if (UnitStringToInternalValue(text, formatId, value) && std::isfinite(value) &&
        std::abs(value) < 1e12) {
        SetFeetInputMode(0);
        const CString written = InternalValueToUnitString(value, formatId, 9);
        double back = 0.0;
        fuzz::Require(UnitStringToInternalValue(written, formatId, back),
                      "a written unit text reads back");
        fuzz::Require(std::abs(back - value) <= 1e-6 * std::max(1.0, std::abs(value)),
                      "a written unit text reads back to its value");
    }
    static_cast<void>(UnitStringToInternalValue(fuzz::Utf8Text(data + 2, size - 2), formatId));
    return 0;
}
