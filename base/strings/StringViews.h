// StringViews.h - parts of narrow views without copying: left, right, mid,
// has_prefix and has_suffix.
//
// Positions and counts are in bytes (chars) and are clamped to the view,
// so no call reads past its end; comparisons are byte for byte.
//
//   vex::mid("survey.ini", 7, 10);           // "ini"
//   vex::has_suffix("survey.ini", ".ini");   // true
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace vex {

// The first n characters of text (all of it when n is larger).
constexpr std::string_view left(std::string_view text, std::size_t n) {
    return text.substr(0, std::min(n, text.size()));
}

// The last n characters of text (all of it when n is larger).
constexpr std::string_view right(std::string_view text, std::size_t n) {
    return text.substr(text.size() - std::min(n, text.size()));
}

// The characters from start up to, not including, end; both are clamped
// to the length, and an end before start gives an empty view.
constexpr std::string_view mid(std::string_view text, std::size_t start, std::size_t end) {
    start = std::min(start, text.size());
    end = std::min(end, text.size());
    return end > start ? text.substr(start, end - start) : text.substr(start, 0);
}

// True when prefix is no longer than text and text begins with it.
constexpr bool has_prefix(std::string_view text, std::string_view prefix) {
    return prefix.size() <= text.size() && text.substr(0, prefix.size()) == prefix;
}

// True when suffix is no longer than text and text ends with it.
constexpr bool has_suffix(std::string_view text, std::string_view suffix) {
    return suffix.size() <= text.size() && text.substr(text.size() - suffix.size()) == suffix;
}

}  // namespace vex
