// LittleEndian.h - conversion of integers and floating-point values to and
// from their little-endian bytes, whatever the byte order of the host.
//
// The library's binary formats (tide records, identifiers, buffers) are
// little-endian with exact sizes; these helpers are the one place that
// knows how. Doubles travel as their IEEE 754 bit pattern.
//
//   auto bytes = vex::ToLittleEndian(std::uint16_t{0x1234});  // {0x34, 0x12}
//   auto value = vex::FromLittleEndian<std::uint16_t>(bytes);  // 0x1234
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <type_traits>

namespace vex {

// The arithmetic types that have a fixed little-endian form (bool has none).
template <class T>
concept LittleEndianValue = (std::is_integral_v<T> && !std::is_same_v<T, bool>) ||
                            (std::is_floating_point_v<T> && (sizeof(T) == 4 || sizeof(T) == 8));

namespace detail {

template <std::size_t N>
using UnsignedOfSize = std::conditional_t<
    N == 1, std::uint8_t,
    std::conditional_t<N == 2, std::uint16_t,
                       std::conditional_t<N == 4, std::uint32_t, std::uint64_t>>>;

}  // namespace detail

// The bytes of value, least significant first.
template <LittleEndianValue T>
constexpr std::array<std::byte, sizeof(T)> ToLittleEndian(T value) {
    using U = detail::UnsignedOfSize<sizeof(T)>;
    const U bits = std::bit_cast<U>(value);
    std::array<std::byte, sizeof(T)> bytes{};
    for (std::size_t i = 0; i < sizeof(T); ++i) {
        bytes[i] = static_cast<std::byte>(static_cast<std::uint8_t>(bits >> (8 * i)));
    }
    return bytes;
}

// The value whose little-endian bytes are given.
template <LittleEndianValue T>
constexpr T FromLittleEndian(std::span<const std::byte, sizeof(T)> bytes) {
    using U = detail::UnsignedOfSize<sizeof(T)>;
    U bits = 0;
    for (std::size_t i = 0; i < sizeof(T); ++i) {
        bits = static_cast<U>(bits | (static_cast<U>(bytes[i]) << (8 * i)));
    }
    return std::bit_cast<T>(bits);
}

}  // namespace vex
