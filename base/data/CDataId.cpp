#include <base/data/CDataId.h>

#include <base/data/IdFields.h>
#include <base/framework/CharBuffer.h>
#include <base/framework/Format.h>
#include <base/framework/TextEncoding.h>

#include <array>
#include <ostream>

namespace vex {

namespace {

// The text form lists the vessel second, unlike the memory order.
std::u16string IdText(std::uint16_t dataType, std::uint16_t groupId, std::uint16_t deviceNum,
                      std::uint16_t vesselId) {
    return Format(u"%hu,%hu,%hu,%hu", dataType, vesselId, groupId, deviceNum);
}

}  // namespace

CDataId::CDataId() {
    GenerateKey();
}

CDataId::CDataId(std::uint16_t dataType, std::uint16_t groupId, std::uint16_t deviceNum,
                 std::uint16_t vesselId)
    : dataType_(dataType), groupId_(groupId), deviceNum_(deviceNum), vesselId_(vesselId) {
    GenerateKey();
}

bool CDataId::Set(std::uint16_t dataType, std::uint16_t groupId, std::uint16_t deviceNum,
                  std::uint16_t vesselId) {
    dataType_ = dataType;
    groupId_ = groupId;
    deviceNum_ = deviceNum;
    vesselId_ = vesselId;
    GenerateKey();
    return true;
}

void CDataId::SetDataType(std::uint16_t dataType) {
    dataType_ = dataType;
    GenerateKey();
}

void CDataId::SetGroupId(std::uint16_t groupId) {
    groupId_ = groupId;
    GenerateKey();
}

void CDataId::SetDeviceNum(std::uint16_t deviceNum) {
    deviceNum_ = deviceNum;
    GenerateKey();
}

void CDataId::SetVesselId(std::uint16_t vesselId) {
    vesselId_ = vesselId;
    GenerateKey();
}

std::string CDataId::GenerateStdString() const {
    return key_.ToUtf8();
}

bool CDataId::SetFromKey(const CString& key) {
    // Text order: data type, vessel id, group id, device number.
    std::array<std::uint16_t, 4> fields{};
    if (detail::ReadUInt16Fields(key.View(), fields) != 4) return false;
    return Set(fields[0], fields[2], fields[3], fields[1]);
}

bool CDataId::SetFromString(std::string_view utf8) {
    return SetFromKey(CString(Utf8ToUtf16(utf8)));
}

void CDataId::Save(CharBuffer& buffer) const {
    buffer.AppendUInt16(dataType_);
    buffer.AppendUInt16(groupId_);
    buffer.AppendUInt16(deviceNum_);
    buffer.AppendUInt16(vesselId_);
}

bool CDataId::Load(CharBuffer& buffer) {
    // All or nothing: a short buffer must not leave half an id behind.
    if (buffer.GetRemaining() < 8) return false;
    buffer.ReadUInt16(dataType_);
    buffer.ReadUInt16(groupId_);
    buffer.ReadUInt16(deviceNum_);
    buffer.ReadUInt16(vesselId_);
    return true;
}

void CDataId::GenerateKey() {
    key_ = CString(IdText(dataType_, groupId_, deviceNum_, vesselId_));
}

std::ostream& operator<<(std::ostream& out, const CDataId& id) {
    return out << Utf16ToUtf8(
               IdText(id.GetDataType(), id.GetGroupId(), id.GetDeviceNum(), id.GetVesselId()));
}

}  // namespace vex
