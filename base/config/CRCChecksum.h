// CRCChecksum.h - the CRC-32 register used for error signatures and the
// checksum section of configuration files, and the 16-bit and "8-bit"
// checks of device records.
//
// CRCChecksum is CRC-32 with the reflected polynomial 0xEDB88320, started
// at 0xFFFFFFFF. Value() is the raw register, ValueInverted() the usual
// CRC-32 result. Wide text feeds only the low byte of each UTF-16 code unit,
// so texts that differ only in their high bytes give the same value; stored
// signatures and checksums depend on this.
//
//   vex::CRCChecksum crc;
//   crc += "123456789";
//   crc.ValueInverted();   // 0xCBF43926
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace vex {

class VEXBASE_API CRCChecksum {
  public:
    CRCChecksum() = default;

    // Feeds bytes.
    void Add(const void* data, std::size_t size);
    // Feeds the low byte of every code unit.
    void AddLowBytes(std::u16string_view text);

    CRCChecksum& operator+=(unsigned char byte);
    // Four bytes, least significant first.
    CRCChecksum& operator+=(int value);
    CRCChecksum& operator+=(unsigned int value);
    // The bytes up to the terminating zero; null feeds nothing.
    CRCChecksum& operator+=(const char* text);
    CRCChecksum& operator+=(const wchar_t* text);
    CRCChecksum& operator+=(const CString& text);
    CRCChecksum& operator+=(const std::wstring& text);
    CRCChecksum& operator+=(std::u16string_view text);

    unsigned int Value() const { return m_register; }
    unsigned int ValueInverted() const { return ~m_register; }
    void Reset() { m_register = 0xFFFFFFFFu; }

  private:
    unsigned int m_register = 0xFFFFFFFFu;
};

namespace detail {
// For tests and benchmarks: whether CRC-32 uses the processor's carry-less
// multiplication, and an update of a raw register that may be kept to the
// portable table path. Both paths give identical results.
VEXBASE_API bool Crc32IsAccelerated();
VEXBASE_API unsigned int Crc32Update(unsigned int reg, const void* data, std::size_t size,
                                     bool allowAccelerated);
}  // namespace detail

// CRC-16 with the reflected polynomial 0x8408, start 0, no final inversion
// ("123456789" gives 0x2189). An empty or reversed range gives 0.
VEXBASE_API unsigned short Compute16BitCRC(const unsigned char* begin, const unsigned char* end);

// Despite its name, the bitwise OR of all bytes of the range; an empty or
// reversed range gives 0. Kept as it is because stored records rely on it.
VEXBASE_API unsigned char Compute8BitCRC(const unsigned char* begin, const unsigned char* end);

}  // namespace vex
