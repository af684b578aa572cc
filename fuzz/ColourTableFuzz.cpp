// Colour tables from any settings file: reading never fails badly, the
// lookup always answers with the last entry at or below the value, and
// saving and reading settles.
#include "FuzzSupport.h"

#include <base/colour/ColorTable.h>

#include <cmath>
#include <initializer_list>

namespace {

using namespace vex;

// The colour the lookup must give, found by walking the entries.
COLORREF BruteForce(const ColorTable& table, double value) {
    COLORREF colour = table.LowColor();
    for (int i = 0; i < table.NumEntries(); ++i) {
        if (table.EntryValue(i) <= value) colour = table.EntryColor(i);
    }
    return colour;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FileObject file;
    if (!fuzz::ParseFileObject(file, fuzz::Bytes(data, size))) return 0;
    ColorTable table;
    if (!table.FileOpen(file)) return 0;
    for (int i = 0; i < table.NumEntries(); ++i) {
        const double v = table.EntryValue(i);
        if (std::isnan(v)) continue;
        for (double probe : {v, std::nextafter(v, -INFINITY), std::nextafter(v, INFINITY)}) {
            fuzz::Require(table.GetColor(probe) == BruteForce(table, probe),
                          "GetColor gives the last entry at or below the value");
        }
    }
    // Numbers are written with the decimals GetDoublePrecision gives them,
    // which can turn a value into another one (-1e-51 is written as
    // "-0.0000000000000000", which reads as -0 and is then written "-0"),
    // so the writer need only settle within a few rounds.
    FileObject saved;
    fuzz::Require(table.FileSave(saved), "a read table saves");
    auto bytes = fuzz::SavedBytes(saved);
    for (int round = 0;; ++round) {
        ColorTable again;
        fuzz::Require(again.FileOpen(saved), "a saved table reads");
        FileObject savedAgain;
        fuzz::Require(again.FileSave(savedAgain), "a read table saves again");
        auto next = fuzz::SavedBytes(savedAgain);
        if (next == bytes) break;
        fuzz::Require(round < 3, "saving and reading a table settles");
        saved = savedAgain;
        bytes = std::move(next);
    }
    return 0;
}
