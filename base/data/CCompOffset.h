// CCompOffset.h - CCompOffset, the lever-arm offset that a computation
// applies: fixed X, Y, Z values, a named offset of a vessel, or the value
// of a datum.
//
// Which fields matter depends on the off-track selection and the offset
// type, and so does equality: with a non-zero off-track selection only the
// data id counts; otherwise type 1 compares the vessel id and name, type 2
// the X, Y, Z values, type 3 the data id, and any other type is unequal
// even to itself. X, Y, Z are in the system length unit (x east, y north,
// z up). The text form leaves the off-track selection out.
//
//   vex::CCompOffset offset;             // type 2, vessel 1, (0, 0, 0)
//   offset.SetOffset(1.5, -2.0, 0.25);
//   offset.GenerateString();             // u"2,1,,0,0,0,0,1.500000,-2.000000,0.250000"
#pragma once

#include <base/Export.h>
#include <base/data/CDataId.h>
#include <base/geometry/Point.h>

namespace vex {

class VEXBASE_API CCompOffset {
  public:
    // What the offset type says about where the offset comes from.
    static constexpr std::uint32_t NAMED_VESSEL_OFFSET = 1;
    static constexpr std::uint32_t FIXED_VALUES = 2;
    static constexpr std::uint32_t FROM_DATUM = 3;

    // Off-track selection 0, fixed values (0, 0, 0), vessel 1, no name,
    // default data id.
    CCompOffset() = default;
    CCompOffset(const CCompOffset&) = default;
    CCompOffset(CCompOffset&&) noexcept = default;
    CCompOffset& operator=(const CCompOffset&) = default;
    CCompOffset& operator=(CCompOffset&&) noexcept = default;
    virtual ~CCompOffset();

    // 0: the offset type decides; non-zero: the offset comes from the data id.
    std::uint32_t GetOffTrackSelection() const { return offTrackSelection_; }
    void SetOffTrackSelection(std::uint32_t selection) { offTrackSelection_ = selection; }
    std::uint32_t GetOffsetType() const { return offsetType_; }
    void SetOffsetType(std::uint32_t type) { offsetType_ = type; }
    std::uint32_t GetOffsetVesselId() const { return offsetVesselId_; }
    void SetOffsetVesselId(std::uint32_t vesselId) { offsetVesselId_ = vesselId; }
    const CString& GetOffsetName() const { return offsetName_; }
    void SetOffsetName(const CString& name) { offsetName_ = name; }
    const CDataId& GetOffsetDataId() const { return offsetDataId_; }
    void GetOffsetDataId(CDataId& dataId) const { dataId = offsetDataId_; }
    void SetOffsetDataId(const CDataId& dataId) { offsetDataId_ = dataId; }
    Point GetOffset() const { return {x_, y_, z_}; }
    void GetOffset(double& x, double& y, double& z) const;
    void SetOffset(const Point& offset);
    void SetOffset(double x, double y, double z);

    // "type,vessel id,name,data type,vessel id,group id,device number,X,Y,Z"
    // with six decimals for X, Y, Z; the name is written as it is, so a
    // name holding a comma does not read back.
    CString GenerateString() const;
    // Reads the fields of GenerateString, split at commas, one by one: every
    // field present is read even when an earlier one failed, and each that
    // reads is stored (the data id is stored from its four fields, a failed
    // one keeping its old number, with the key refreshed). Integer fields
    // are plain decimal digits in range (no sign, no blank); X, Y, Z read
    // as "%lf" without blanks or trailing text. True only when there are at
    // least ten fields and all of them read; after false the offset may be
    // partly updated.
    bool SetFromString(const CString& text);

    friend VEXBASE_API bool operator==(const CCompOffset& a, const CCompOffset& b);

  private:
    std::uint32_t offTrackSelection_ = 0;
    std::uint32_t offsetType_ = FIXED_VALUES;
    std::uint32_t offsetVesselId_ = 1;
    CString offsetName_;
    CDataId offsetDataId_;
    double x_ = 0.0;
    double y_ = 0.0;
    double z_ = 0.0;
};

// Writes GenerateString().
VEXBASE_API std::ostream& operator<<(std::ostream& out, const CCompOffset& offset);

}  // namespace vex
