#include <base/strings/HexText.h>

namespace vex {

CStringA Ascii2Hex(std::string_view bytes) {
    std::string hex;
    hex.reserve(bytes.size() * 2);
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        hex.push_back(ValHex(byte >> 4));
        hex.push_back(ValHex(byte & 0x0F));
    }
    return CStringA(std::move(hex));
}

CStringA Hex2Ascii(std::string_view hex) {
    std::string bytes;
    bytes.reserve(hex.size() / 2);
    for (std::size_t i = 0; i + 1 < hex.size(); i += 2) {
        const int value = HexVal(static_cast<unsigned char>(hex[i])) * 16 +
                          HexVal(static_cast<unsigned char>(hex[i + 1]));
        bytes.push_back(static_cast<char>(static_cast<unsigned char>(value % 256)));
    }
    return CStringA(std::move(bytes));
}

}  // namespace vex
