// Vessel contours from any file and any binary string: loading never fails
// badly, drawing what was loaded works, and the writers reach a fixed point
// (the file writes six decimals; the string carries x, y and the flags).
#include "FuzzSupport.h"

#include <base/framework/SvgDC.h>
#include <base/geodesy/CoordinateSystem.h>
#include <base/survey/VesselContour.h>

#include <string>

namespace {

void Draw(const vex::VesselContour& contour) {
    vex::Page extents;
    if (!contour.GetExtents(extents)) return;
    vex::CoordinateSystem view;
    view.SetPixelWindow(0, 0, 64, 48);
    view.CenterWorldAreaOnPixelWindow(extents, 0.9);
    vex::SvgDC dc(64, 48);
    contour.Draw(dc, view);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vex;
    if (size == 0) return 0;
    const int side = data[0] % 7;
    const bool convert = (data[0] & 0x80) != 0;
    const std::string rest(reinterpret_cast<const char*>(data + 1), size - 1);

    // The bytes as a contour file.
    const auto input = fuzz::TempPath("input.ini");
    fuzz::WriteFile(input, data + 1, size - 1);
    VesselContour contour;
    contour.Create(CString(input.u16string()), side, convert);
    Draw(contour);
    if (contour.IsLoaded() && !convert) {
        const auto first = fuzz::TempPath("first.ini");
        const auto second = fuzz::TempPath("second.ini");
        fuzz::Require(contour.Save(CString(first.u16string())), "a loaded contour saves");
        VesselContour reloaded;
        reloaded.Create(CString(first.u16string()), side, false);
        fuzz::Require(reloaded.Save(CString(second.u16string())), "a reloaded contour saves");
        VesselContour again;
        again.Create(CString(second.u16string()), side, false);
        fuzz::Require(again.GetSize() == reloaded.GetSize(), "a saved outline keeps its points");
    }

    // The same bytes as a binary string.
    VesselContour packed;
    if (packed.LoadFromString(rest)) {
        Draw(packed);
        std::string bytes;
        fuzz::Require(packed.SaveToString(bytes), "a loaded string saves");
        fuzz::Require(bytes.size() == 8 + 18 * static_cast<std::size_t>(packed.GetSize()),
                      "a string is 8 + 18 n bytes");
        // Flags are kept as true or false, so a flag byte comes back as 0 or 1.
        std::string expected = rest.substr(0, bytes.size());
        for (std::size_t at = 8; at + 18 <= expected.size(); at += 18) {
            expected[at + 16] = expected[at + 16] != '\0' ? '\1' : '\0';
            expected[at + 17] = expected[at + 17] != '\0' ? '\1' : '\0';
        }
        fuzz::Require(bytes == expected, "a string saves back byte for byte");
    }
    return 0;
}
