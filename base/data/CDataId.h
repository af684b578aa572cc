// CDataId.h - CDataId, the identifier that names every datum of the suite:
// its data type, the producer group and the producer within it (device
// number), and the vessel it belongs to.
//
// Mind the two orders. The numbers are held, constructed, set, saved and
// ordered as (data type, group id, device number, vessel id); the text form
// (the key, and every text that SetFromString reads) is
// "data type,vessel id,group id,device number". The key is a cached text
// that every setter refreshes, except SetUndefined and Load, which on
// purpose leave the previous text in place; equality, ordering and hashing
// use the numbers only, never the key.
//
//   vex::CDataId gyro(5, 1001, 2, 0);  // data type 5, group 1001, device 2, vessel 0
//   gyro.GetKey();                      // u"5,0,1001,2"
//   gyro.IsComputation();               // true: group ids 1001 to 1167
//   gyro.SetFromKey(u"1,2,3,4");        // data type 1, vessel 2, group 3, device 4
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>

#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>

namespace vex {

class CharBuffer;

class VEXBASE_API CDataId {
  public:
    // All four numbers 0 (undefined); key "0,0,0,0".
    CDataId();
    // Arguments in memory order: note that the vessel id comes last here
    // and second in the text form.
    CDataId(std::uint16_t dataType, std::uint16_t groupId, std::uint16_t deviceNum,
            std::uint16_t vesselId);
    CDataId(const CDataId&) = default;
    CDataId(CDataId&&) noexcept = default;
    CDataId& operator=(const CDataId&) = default;
    CDataId& operator=(CDataId&&) noexcept = default;

    // Stores all four numbers (memory order) and refreshes the key; always true.
    bool Set(std::uint16_t dataType, std::uint16_t groupId, std::uint16_t deviceNum,
             std::uint16_t vesselId);

    // Each stores its field and refreshes the key.
    void SetDataType(std::uint16_t dataType);
    void SetGroupId(std::uint16_t groupId);
    void SetDeviceNum(std::uint16_t deviceNum);
    void SetVesselId(std::uint16_t vesselId);
    std::uint16_t GetDataType() const { return dataType_; }
    std::uint16_t GetGroupId() const { return groupId_; }
    std::uint16_t GetDeviceNum() const { return deviceNum_; }
    std::uint16_t GetVesselId() const { return vesselId_; }

    // The data type is not 0.
    bool IsDefined() const { return dataType_ != 0; }
    // Sets the data type to 0 and leaves the key showing the old value.
    void SetUndefined() { dataType_ = 0; }
    // Data type, group id and device number are all non-zero; vessel 0 is
    // a valid vessel.
    bool IsValid() const { return dataType_ != 0 && groupId_ != 0 && deviceNum_ != 0; }

    // The kind of producer, by group-id range (inclusive): devices 1 to
    // 999, computations 1001 to 1167, data sources 2001 to 2015. Other group
    // ids (0, 1000, 1168 to 2000, 2016 and above) are none of these.
    bool IsDevice() const { return groupId_ >= 1 && groupId_ <= 999; }
    bool IsComputation() const { return groupId_ >= 1001 && groupId_ <= 1167; }
    bool IsDataSource() const { return groupId_ >= 2001 && groupId_ <= 2015; }

    // The cached key "data type,vessel id,group id,device number". Stale
    // after SetUndefined or Load until the next setter.
    const CString& GetKey() const { return key_; }
    const CString& GenerateString() const { return key_; }
    // The key as narrow text (its characters are ASCII).
    std::string GenerateStdString() const;

    // Reads "data type,vessel id,group id,device number": four fields of
    // decimal digits, each at most 65535, separated by single commas. Text
    // after a comma that follows the fourth field is ignored, so the text
    // of a CDataInfo reads as its id. False, with the id unchanged, for
    // fewer fields, an empty field, a sign, a blank, a larger number or any
    // other character (an embedded NUL included).
    bool SetFromKey(const CString& key);
    bool SetFromString(const CString& text) { return SetFromKey(text); }
    // The same for UTF-8 text (invalid bytes read as U+FFFD, which no field
    // accepts).
    bool SetFromString(std::string_view utf8);

    // Appends the four numbers in memory order, 2 bytes each little-endian:
    // 8 bytes at the buffer's position, growing it as needed.
    void Save(CharBuffer& buffer) const;
    // Reads the 8 bytes that Save writes from the buffer's position and
    // advances it; the key is not refreshed. When fewer than 8 bytes remain
    // before the buffer's high-water mark, reads nothing, leaves the id and
    // the position unchanged and returns false.
    bool Load(CharBuffer& buffer);

    // The four numbers only, never the key.
    friend bool operator==(const CDataId& a, const CDataId& b) {
        return a.dataType_ == b.dataType_ && a.groupId_ == b.groupId_ &&
               a.deviceNum_ == b.deviceNum_ && a.vesselId_ == b.vesselId_;
    }
    // Lexicographic on data type, group id, device number, vessel id.
    friend std::strong_ordering operator<=>(const CDataId& a, const CDataId& b) {
        if (const auto c = a.dataType_ <=> b.dataType_; c != 0) return c;
        if (const auto c = a.groupId_ <=> b.groupId_; c != 0) return c;
        if (const auto c = a.deviceNum_ <=> b.deviceNum_; c != 0) return c;
        return a.vesselId_ <=> b.vesselId_;
    }

  private:
    // Reformats the key from the four numbers.
    void GenerateKey();

    std::uint16_t dataType_ = 0;
    std::uint16_t groupId_ = 0;
    std::uint16_t deviceNum_ = 0;
    std::uint16_t vesselId_ = 0;
    CString key_;
};

// Writes the numbers in text order, freshly formatted (a stale key is not
// shown): "5,0,1001,2".
VEXBASE_API std::ostream& operator<<(std::ostream& out, const CDataId& id);

}  // namespace vex

// Hashes the four numbers, so that ids key unordered containers as they compare.
template <>
struct std::hash<vex::CDataId> {
    std::size_t operator()(const vex::CDataId& id) const noexcept {
        const std::uint64_t packed =
            (std::uint64_t{id.GetDataType()} << 48) | (std::uint64_t{id.GetGroupId()} << 32) |
            (std::uint64_t{id.GetDeviceNum()} << 16) | std::uint64_t{id.GetVesselId()};
        return std::hash<std::uint64_t>{}(packed);
    }
};
