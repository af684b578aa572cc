#include <base/strings/ByteSize.h>

#include <base/framework/Format.h>

namespace vex {

namespace {

constexpr double kKilo = 1024.0;
constexpr double kMega = 1048576.0;
constexpr double kGiga = 1073741824.0;

std::u16string ByteSizeText(double bytes) {
    double divisor = kGiga;
    const char16_t* unit = u"GB";
    if (bytes < kMega) {
        divisor = kKilo;
        unit = u"KB";
    } else if (bytes < kGiga) {
        divisor = kMega;
        unit = u"MB";
    }
    const double quotient = bytes / divisor;
    // Small quotients keep one decimal, except a plain 0.
    const bool whole = quotient >= 10.0 || quotient == 0.0;
    return Format(whole ? u"%.0f %s" : u"%.1f %s", quotient, unit);
}

}  // namespace

void FormatByteSize(double bytes, CString& text) {
    text = ByteSizeText(bytes);
}

void FormatByteSizeperSec(double bytesPerSecond, CString& text) {
    text = ByteSizeText(bytesPerSecond) + u"/s";
}

}  // namespace vex
