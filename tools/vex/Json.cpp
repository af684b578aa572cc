#include "Json.h"

#include <base/framework/Format.h>

namespace vextool {

std::string JsonString(std::string_view utf8) {
    std::string out = "\"";
    for (const char c : utf8) {
        switch (c) {
            case '"':
                out += "\\\"";
                break;
            case '\\':
                out += "\\\\";
                break;
            case '\n':
                out += "\\n";
                break;
            case '\r':
                out += "\\r";
                break;
            case '\t':
                out += "\\t";
                break;
            default:
                if (static_cast<unsigned char>(c) < 0x20) {
                    out += vex::Format("\\u%04x",
                                       static_cast<unsigned>(static_cast<unsigned char>(c)));
                } else {
                    out += c;  // UTF-8 passes through as it is
                }
        }
    }
    return out + "\"";
}

}  // namespace vextool
