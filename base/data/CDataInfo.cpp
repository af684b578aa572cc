#include <base/data/CDataInfo.h>

#include <base/data/IdFields.h>
#include <base/framework/Format.h>
#include <base/framework/TextEncoding.h>

#include <array>
#include <ostream>

namespace vex {

void CDataInfo::SetInfo(const CDataId& dataId, std::uint16_t elemId, std::uint16_t arrayIndex) {
    dataId_ = dataId;
    elemId_ = elemId;
    arrayIndex_ = arrayIndex;
}

void CDataInfo::GetInfo(CDataId& dataId, std::uint16_t& elemId) const {
    dataId = dataId_;
    elemId = elemId_;
}

CString CDataInfo::GenerateString() const {
    const CDataId& id = dataId_;
    if (HasArrayIndex()) {
        return CString(Format(u"%hu,%hu,%hu,%hu,%hu,%hu", id.GetDataType(), id.GetVesselId(),
                              id.GetGroupId(), id.GetDeviceNum(), elemId_, arrayIndex_));
    }
    return CString(Format(u"%hu,%hu,%hu,%hu,%hu", id.GetDataType(), id.GetVesselId(),
                          id.GetGroupId(), id.GetDeviceNum(), elemId_));
}

bool CDataInfo::SetFromString(const CString& text) {
    std::array<std::uint16_t, 6> fields{};
    const int count = detail::ReadUInt16Fields(text.View(), fields);
    if (count != 5 && count != 6) return false;
    dataId_.Set(fields[0], fields[2], fields[3], fields[1]);
    elemId_ = fields[4];
    // Five fields leave the array index alone: a text written without one
    // does not say "none", it says nothing.
    if (count == 6) arrayIndex_ = fields[5];
    return true;
}

std::ostream& operator<<(std::ostream& out, const CDataInfo& info) {
    return out << info.GenerateString().ToUtf8();
}

}  // namespace vex
