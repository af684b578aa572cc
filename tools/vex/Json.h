// Json.h - the little JSON the tool writes: quoted, escaped strings.
#pragma once

#include <string>
#include <string_view>

namespace vextool {

// utf8 as a JSON string literal, quotes included.
std::string JsonString(std::string_view utf8);

}  // namespace vextool
