// ToStr.h - conversions between values and narrow standard strings:
// to_str and from_str, one overload per type.
//
// Numbers are printed with the printf conversion of their type ("%d",
// "%u", "%hd", "%ld", "%lld", "%g", "%lg", "%Lg") and read with the scanf one,
// always with the "C" locale's decimal point; long double is printed and
// read at double precision. from_str returns false and leaves the value
// unchanged unless a value was read: on empty or malformed text, on a
// number outside the type's range (scanf would cut it), and on a minus
// sign before an unsigned number. As with scanf, text after the number is
// ignored ("12abc" reads 12).
//
//   int depth = 0;
//   vex::from_str("42", depth);       // true, depth == 42
//   std::string t = vex::to_str(0.5);  // "0.5"
#pragma once

#include <base/Export.h>

#include <string>
#include <string_view>

namespace vex {

VEXBASE_API std::string to_str(bool value);  // "true" / "false"
VEXBASE_API std::string to_str(char value);  // the character itself
VEXBASE_API std::string to_str(signed char value);
VEXBASE_API std::string to_str(unsigned char value);
VEXBASE_API std::string to_str(short value);
VEXBASE_API std::string to_str(unsigned short value);
VEXBASE_API std::string to_str(int value);
VEXBASE_API std::string to_str(unsigned int value);
VEXBASE_API std::string to_str(long value);
VEXBASE_API std::string to_str(unsigned long value);
VEXBASE_API std::string to_str(long long value);
VEXBASE_API std::string to_str(unsigned long long value);
VEXBASE_API std::string to_str(float value);
VEXBASE_API std::string to_str(double value);
VEXBASE_API std::string to_str(long double value);
// Copies of text; a null C string gives "".
VEXBASE_API std::string to_str(const char* text);
VEXBASE_API std::string to_str(std::string_view text);
VEXBASE_API std::string to_str(const std::string& text);
VEXBASE_API std::string to_str(std::string&& text);

// True only for exactly "true" or "false", case and all.
VEXBASE_API bool from_str(std::string_view text, bool& value);
// The first character of text as it is ("%c": white space included); with
// UTF-8 active, a byte that is not a character on its own is refused.
VEXBASE_API bool from_str(std::string_view text, char& value);
VEXBASE_API bool from_str(std::string_view text, signed char& value);
VEXBASE_API bool from_str(std::string_view text, unsigned char& value);
VEXBASE_API bool from_str(std::string_view text, short& value);
VEXBASE_API bool from_str(std::string_view text, unsigned short& value);
VEXBASE_API bool from_str(std::string_view text, int& value);
VEXBASE_API bool from_str(std::string_view text, unsigned int& value);
VEXBASE_API bool from_str(std::string_view text, long& value);
VEXBASE_API bool from_str(std::string_view text, unsigned long& value);
VEXBASE_API bool from_str(std::string_view text, long long& value);
VEXBASE_API bool from_str(std::string_view text, unsigned long long& value);
// Decimal or hex digits, "inf" or "nan"; digits that overflow the type fail.
VEXBASE_API bool from_str(std::string_view text, float& value);
VEXBASE_API bool from_str(std::string_view text, double& value);
VEXBASE_API bool from_str(std::string_view text, long double& value);
// The text itself (a null C string as ""); always true.
VEXBASE_API bool from_str(std::string_view text, std::string& value);
VEXBASE_API bool from_str(const char* text, std::string& value);
VEXBASE_API bool from_str(std::string&& text, std::string& value);

}  // namespace vex
