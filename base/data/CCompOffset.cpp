#include <base/data/CCompOffset.h>

#include <base/data/IdFields.h>
#include <base/framework/Format.h>
#include <base/strings/CVexString.h>

#include <ostream>

namespace vex {

CCompOffset::~CCompOffset() = default;

void CCompOffset::GetOffset(double& x, double& y, double& z) const {
    x = x_;
    y = y_;
    z = z_;
}

void CCompOffset::SetOffset(const Point& offset) {
    SetOffset(offset.x, offset.y, offset.z);
}

void CCompOffset::SetOffset(double x, double y, double z) {
    x_ = x;
    y_ = y;
    z_ = z;
}

CString CCompOffset::GenerateString() const {
    const CDataId& id = offsetDataId_;
    CString text(Format(u"%u,%u,", offsetType_, offsetVesselId_));
    text += offsetName_;
    text += CString(Format(u",%hu,%hu,%hu,%hu,%f,%f,%f", id.GetDataType(), id.GetVesselId(),
                           id.GetGroupId(), id.GetDeviceNum(), x_, y_, z_));
    return text;
}

bool CCompOffset::SetFromString(const CString& text) {
    const CVexString fields(text, u',');
    const int count = fields.Size();
    bool ok = count >= 10;
    const auto field = [&fields](int i) { return fields[i].View(); };

    if (count > 0) ok = detail::ReadUnsignedField(field(0), 0xFFFFFFFFu, offsetType_) && ok;
    if (count > 1) ok = detail::ReadUnsignedField(field(1), 0xFFFFFFFFu, offsetVesselId_) && ok;
    if (count > 2) offsetName_ = fields[2];

    // Text order of the id: data type, vessel id, group id, device number.
    std::uint16_t dataType = offsetDataId_.GetDataType();
    std::uint16_t vesselId = offsetDataId_.GetVesselId();
    std::uint16_t groupId = offsetDataId_.GetGroupId();
    std::uint16_t deviceNum = offsetDataId_.GetDeviceNum();
    std::uint16_t* const idFields[] = {&dataType, &vesselId, &groupId, &deviceNum};
    for (int i = 0; i < 4; ++i) {
        if (count > 3 + i) ok = detail::ReadUInt16Field(field(3 + i), *idFields[i]) && ok;
    }
    if (count > 3) offsetDataId_.Set(dataType, groupId, deviceNum, vesselId);

    double* const values[] = {&x_, &y_, &z_};
    for (int i = 0; i < 3; ++i) {
        if (count > 7 + i) ok = detail::ReadDoubleField(field(7 + i), *values[i]) && ok;
    }
    return ok;
}

bool operator==(const CCompOffset& a, const CCompOffset& b) {
    if (a.offTrackSelection_ != b.offTrackSelection_) return false;
    if (a.offTrackSelection_ != 0) return a.offsetDataId_ == b.offsetDataId_;
    if (a.offsetType_ != b.offsetType_) return false;
    switch (a.offsetType_) {
        case CCompOffset::NAMED_VESSEL_OFFSET:
            return a.offsetVesselId_ == b.offsetVesselId_ && a.offsetName_ == b.offsetName_;
        case CCompOffset::FIXED_VALUES:
            return a.x_ == b.x_ && a.y_ == b.y_ && a.z_ == b.z_;
        case CCompOffset::FROM_DATUM:
            return a.offsetDataId_ == b.offsetDataId_;
        default:
            // An offset of unknown kind names nothing, so nothing equals it.
            return false;
    }
}

std::ostream& operator<<(std::ostream& out, const CCompOffset& offset) {
    return out << offset.GenerateString().ToUtf8();
}

}  // namespace vex
