// IdFields.h - the strict readers of the number fields of identifier texts,
// shared by CDataId, CDataInfo and CCompOffset. Internal: not installed.
//
// Identifiers travel through settings files and clipboard records, where a
// value that scanf would wrap ("70000" as 4464, "-1" as 65535) or read
// around (" 7") would silently name another datum. These readers accept
// plain decimal digits only and refuse the rest.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace vex::detail {

// Reads a whole field of ASCII digits whose value is at most maxValue.
// False, with value unchanged, for an empty field, a sign, a blank or any
// other character, or a larger value.
bool ReadUnsignedField(std::u16string_view field, std::uint32_t maxValue, std::uint32_t& value);
bool ReadUInt16Field(std::u16string_view field, std::uint16_t& value);

// Reads a whole field as a decimal or hex floating-point number, "inf" or
// "nan", with an optional sign. False, with value unchanged, for a blank
// before or after the number, other text after it, or digits that
// overflow to infinity.
bool ReadDoubleField(std::u16string_view field, double& value);

// Reads comma-separated 16-bit fields from the start of text into values,
// at most values.size() of them. Returns how many were read when the text
// ends after a field, or when a comma follows the last field that fits
// (whatever comes after that comma is ignored, so a longer record reads as
// its leading fields); -1 when a field is malformed or a field is followed
// by anything but a comma or the end. Only the first count of values are
// written; the rest are unchanged.
int ReadUInt16Fields(std::u16string_view text, std::span<std::uint16_t> values);

}  // namespace vex::detail
