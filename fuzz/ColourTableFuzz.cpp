// Colour tables from any settings file: reading never fails badly, the
// lookup always answers with the last entry at or below the value, and the
// writer reaches a fixed point (save, read, save gives the same file).
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
    FileObject saved;
    fuzz::Require(table.FileSave(saved), "a read table saves");
    ColorTable again;
    fuzz::Require(again.FileOpen(saved), "a saved table reads");
    FileObject savedAgain;
    fuzz::Require(again.FileSave(savedAgain), "a read table saves again");
    fuzz::Require(fuzz::SavedBytes(savedAgain) == fuzz::SavedBytes(saved),
                  "saving a saved table again gives the same file");
    return 0;
}
