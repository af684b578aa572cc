#include <base/strings/ToStr.h>

#include <base/framework/Format.h>
#include <base/framework/TextEncoding.h>
#include <base/strings/NumberScan.h>

namespace vex {
namespace {

template <class T>
bool FromInteger(std::string_view text, T& value) {
    return detail::ScanInteger(text, 10, value);
}

template <class T>
bool FromFloating(std::string_view text, T& value) {
    return detail::ScanFloating(text, value);
}

}  // namespace

std::string to_str(bool value) {
    return value ? "true" : "false";
}
std::string to_str(char value) {
    return std::string(1, value);
}
std::string to_str(signed char value) {
    return Format("%d", value);
}
std::string to_str(unsigned char value) {
    return Format("%u", value);
}
std::string to_str(short value) {
    return Format("%hd", value);
}
std::string to_str(unsigned short value) {
    return Format("%hu", value);
}
std::string to_str(int value) {
    return Format("%d", value);
}
std::string to_str(unsigned int value) {
    return Format("%u", value);
}
std::string to_str(long value) {
    return Format("%ld", value);
}
std::string to_str(unsigned long value) {
    return Format("%lu", value);
}
std::string to_str(long long value) {
    return Format("%lld", value);
}
std::string to_str(unsigned long long value) {
    return Format("%llu", value);
}
std::string to_str(float value) {
    return Format("%g", value);
}
std::string to_str(double value) {
    return Format("%lg", value);
}
std::string to_str(long double value) {
    return Format("%Lg", value);
}
std::string to_str(const char* text) {
    return text ? std::string(text) : std::string();
}
std::string to_str(std::string_view text) {
    return std::string(text);
}
std::string to_str(const std::string& text) {
    return text;
}
std::string to_str(std::string&& text) {
    return std::move(text);
}

bool from_str(std::string_view text, bool& value) {
    if (text == "true") {
        value = true;
    } else if (text == "false") {
        value = false;
    } else {
        return false;
    }
    return true;
}

bool from_str(std::string_view text, char& value) {
    if (text.empty()) return false;
    const auto byte = static_cast<unsigned char>(text[0]);
    if (byte >= 0x80 && GetActiveCodePage() == CodePage::Utf8) return false;
    value = text[0];
    return true;
}

bool from_str(std::string_view text, signed char& value) {
    return FromInteger(text, value);
}
bool from_str(std::string_view text, unsigned char& value) {
    return FromInteger(text, value);
}
bool from_str(std::string_view text, short& value) {
    return FromInteger(text, value);
}
bool from_str(std::string_view text, unsigned short& value) {
    return FromInteger(text, value);
}
bool from_str(std::string_view text, int& value) {
    return FromInteger(text, value);
}
bool from_str(std::string_view text, unsigned int& value) {
    return FromInteger(text, value);
}
bool from_str(std::string_view text, long& value) {
    return FromInteger(text, value);
}
bool from_str(std::string_view text, unsigned long& value) {
    return FromInteger(text, value);
}
bool from_str(std::string_view text, long long& value) {
    return FromInteger(text, value);
}
bool from_str(std::string_view text, unsigned long long& value) {
    return FromInteger(text, value);
}
bool from_str(std::string_view text, float& value) {
    return FromFloating(text, value);
}
bool from_str(std::string_view text, double& value) {
    return FromFloating(text, value);
}
bool from_str(std::string_view text, long double& value) {
    return FromFloating(text, value);
}

bool from_str(std::string_view text, std::string& value) {
    value.assign(text);
    return true;
}
bool from_str(const char* text, std::string& value) {
    value.assign(text ? text : "");
    return true;
}
bool from_str(std::string&& text, std::string& value) {
    value = std::move(text);
    return true;
}

}  // namespace vex
