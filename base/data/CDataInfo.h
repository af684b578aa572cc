// CDataInfo.h - CDataInfo, a CDataId narrowed to one element of a
// multi-element datum and, optionally, to one entry of an array element.
//
// 65535 (NO_INDEX) in the element id or the array index means "none". The
// text form is the id's text followed by the element id and, when there is
// one, the array index: "1,2,3,4,5" or "1,2,3,4,5,6". Reading a five-field
// text keeps the array index the object already had; it does not reset it.
//
//   vex::CDataInfo heading(vex::CDataId(5, 1001, 2, 0), 3, vex::CDataInfo::NO_INDEX);
//   heading.GenerateString();          // u"5,0,1001,2,3"
//   heading.SetFromString(u"5,0,1001,2,3,7");
//   heading.GetArrayIndex();           // 7
#pragma once

#include <base/Export.h>
#include <base/data/CDataId.h>

namespace vex {

class VEXBASE_API CDataInfo {
  public:
    // The element id or array index that means "none".
    static constexpr std::uint16_t NO_INDEX = 65535;

    // A default id with no element and no array index.
    CDataInfo() = default;
    CDataInfo(const CDataId& dataId, std::uint16_t elemId, std::uint16_t arrayIndex)
        : dataId_(dataId), elemId_(elemId), arrayIndex_(arrayIndex) {}
    CDataInfo(const CDataInfo&) = default;
    CDataInfo(CDataInfo&&) noexcept = default;
    CDataInfo& operator=(const CDataInfo&) = default;
    CDataInfo& operator=(CDataInfo&&) noexcept = default;

    void SetInfo(const CDataId& dataId, std::uint16_t elemId, std::uint16_t arrayIndex);
    // The data id and element id; the array index is not returned.
    void GetInfo(CDataId& dataId, std::uint16_t& elemId) const;

    void SetDataId(const CDataId& dataId) { dataId_ = dataId; }
    const CDataId& GetDataId() const { return dataId_; }
    void SetElemId(std::uint16_t elemId) { elemId_ = elemId; }
    std::uint16_t GetElemId() const { return elemId_; }
    void SetArrayIndex(std::uint16_t arrayIndex) { arrayIndex_ = arrayIndex; }
    std::uint16_t GetArrayIndex() const { return arrayIndex_; }

    // The data id's fields; the setters refresh its key.
    void SetDataType(std::uint16_t dataType) { dataId_.SetDataType(dataType); }
    void SetGroupId(std::uint16_t groupId) { dataId_.SetGroupId(groupId); }
    void SetDeviceNum(std::uint16_t deviceNum) { dataId_.SetDeviceNum(deviceNum); }
    void SetVesselId(std::uint16_t vesselId) { dataId_.SetVesselId(vesselId); }
    std::uint16_t GetDataType() const { return dataId_.GetDataType(); }
    std::uint16_t GetGroupId() const { return dataId_.GetGroupId(); }
    std::uint16_t GetDeviceNum() const { return dataId_.GetDeviceNum(); }
    std::uint16_t GetVesselId() const { return dataId_.GetVesselId(); }

    bool HasElemId() const { return elemId_ < NO_INDEX; }
    bool HasArrayIndex() const { return arrayIndex_ < NO_INDEX; }
    // The data id's data type, group id and device number are non-zero and
    // there is an element id.
    bool IsValid() const { return dataId_.IsValid() && HasElemId(); }

    // "data type,vessel id,group id,device number,element id" and, when
    // there is an array index, ",array index"; an element id of 65535 is
    // written as it is. Formatted from the numbers, not the id's key.
    CString GenerateString() const;
    // Reads five or six comma-separated fields in the order GenerateString
    // writes them, with the field rules of CDataId::SetFromKey. Five fields
    // keep the array index as it was; six set it too. Text after a comma
    // that follows the sixth field is ignored. False, with nothing changed,
    // for any other number of fields or a malformed field.
    bool SetFromString(const CString& text);

    // The id's four numbers, element id and array index.
    friend bool operator==(const CDataInfo& a, const CDataInfo& b) {
        return a.dataId_ == b.dataId_ && a.elemId_ == b.elemId_ && a.arrayIndex_ == b.arrayIndex_;
    }
    // Lexicographic on the id (as CDataId orders), element id, array index.
    friend std::strong_ordering operator<=>(const CDataInfo& a, const CDataInfo& b) {
        if (const auto c = a.dataId_ <=> b.dataId_; c != 0) return c;
        if (const auto c = a.elemId_ <=> b.elemId_; c != 0) return c;
        return a.arrayIndex_ <=> b.arrayIndex_;
    }

  private:
    CDataId dataId_;
    std::uint16_t elemId_ = NO_INDEX;
    std::uint16_t arrayIndex_ = NO_INDEX;
};

// Writes GenerateString(): "5,0,1001,2,3".
VEXBASE_API std::ostream& operator<<(std::ostream& out, const CDataInfo& info);

}  // namespace vex

// Hashes what operator== compares.
template <>
struct std::hash<vex::CDataInfo> {
    std::size_t operator()(const vex::CDataInfo& info) const noexcept {
        const std::size_t id = std::hash<vex::CDataId>{}(info.GetDataId());
        const std::uint32_t rest =
            (std::uint32_t{info.GetElemId()} << 16) | std::uint32_t{info.GetArrayIndex()};
        // Boost's hash_combine mixing, so that the two parts do not cancel.
        return id ^ (std::hash<std::uint32_t>{}(rest) + 0x9E3779B9u + (id << 6) + (id >> 2));
    }
};
