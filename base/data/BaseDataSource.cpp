#include <base/data/BaseDataSource.h>

namespace vex {

// The defaults report "not supported" without throwing, so that a source
// overrides only what it really does.

BaseDataSource::~BaseDataSource() = default;

void BaseDataSource::SetOption(std::uint32_t mask) {
    options_ |= mask;
}
void BaseDataSource::ResetOption(std::uint32_t mask) {
    options_ &= ~mask;
}

void BaseDataSource::Init() {}
bool BaseDataSource::DataBlockSetup(std::uint16_t, const CDataId&) {
    return false;
}
bool BaseDataSource::InitDataElement(int, std::uint16_t, std::uint16_t, std::uint16_t,
                                     std::uint16_t, std::uint16_t) {
    return false;
}
bool BaseDataSource::DataBlockInit() {
    return false;
}

bool BaseDataSource::Interpolate(CDataBlock&) {
    return false;
}
bool BaseDataSource::Interpolate(double, std::uint16_t, ADDR_MODE, double&, std::uint16_t&) {
    return false;
}
bool BaseDataSource::InterpolateHeading(double, std::uint16_t, ADDR_MODE, double, double, double&,
                                        std::uint16_t&) {
    return false;
}
bool BaseDataSource::FindIntervalStartEnd(double, std::uint16_t, ADDR_MODE, double&, double&,
                                          double&, double&, std::uint16_t&) {
    return false;
}

bool BaseDataSource::GetLastAddTime(double&) const {
    return false;
}
bool BaseDataSource::GetLastAddTimeLocal(double&) const {
    return false;
}
void BaseDataSource::UpdateLastAddTime() {}
bool BaseDataSource::GetDataBlock(int, CDataBlock&) {
    return false;
}
bool BaseDataSource::GetDataBlock(int, double&, CDataBlock&) {
    return false;
}
bool BaseDataSource::GetDataTimeStatus(int, double&, std::uint16_t&) {
    return false;
}
bool BaseDataSource::UpdateData(double, const CAttributeMap&) {
    return false;
}
bool BaseDataSource::UpdateDataBlock(CDataBlock&) {
    return false;
}
bool BaseDataSource::GetBufferStatus(double&, std::uint16_t&) const {
    return false;
}
bool BaseDataSource::SetBufferStatus(double, std::uint16_t) {
    return false;
}
bool BaseDataSource::AddDataBlock(const CDataBlock&) {
    return false;
}
bool BaseDataSource::AddClockSyncDataBlock(const CDataBlock&) {
    return false;
}
bool BaseDataSource::GetDataId(CDataId&) const {
    return false;
}
CDataId* BaseDataSource::GetDataIdPtr() {
    return nullptr;
}
bool BaseDataSource::GetLastElementInternal() {
    return false;
}
CDataBlock* BaseDataSource::GetInternalDataBlock() {
    return nullptr;
}
void BaseDataSource::CopyDataBlock(CDataBlock&) const {}
bool BaseDataSource::GetLastDataBlock(CDataBlock&) {
    return false;
}

void BaseDataSource::SetLastNotifyTime(double time) {
    lastNotifyTime_ = time;
}
double BaseDataSource::GetLastNotifyTime() {
    return lastNotifyTime_;
}
void BaseDataSource::NotifySubscribers() {}
void BaseDataSource::AddCompSubscription(Compform*) {}
void BaseDataSource::RemoveCompSubscription(Compform*) {}
void BaseDataSource::AddDeviceSubscription(BaseDevice*) {}
void BaseDataSource::RemoveDeviceSubscription(BaseDevice*) {}
void BaseDataSource::AddDocumentSubscription(CDocument*) {}
void BaseDataSource::RemoveDocumentSubscription(CDocument*) {}
void BaseDataSource::AddDataSubscription(DataSubscription*) {}
void BaseDataSource::RemoveDataSubscription(DataSubscription*) {}

bool BaseDataSource::Allocate(std::int32_t) {
    return false;
}
void BaseDataSource::SetInterpolAttribs(bool, double) {}
void BaseDataSource::SetExtrapolationAttribs(bool, double) {}
bool BaseDataSource::GetInterpolAttribs(double&) {
    return false;
}
bool BaseDataSource::GetExtrapolationAttribs(double&) {
    return false;
}
std::int32_t BaseDataSource::GetBufSize() const {
    return 0;
}
std::int32_t BaseDataSource::GetNumElements() {
    return 0;
}
std::int32_t BaseDataSource::GetFreeBufferSpace() const {
    return 0;
}
void BaseDataSource::ResetNumUnusedElements() {}
bool BaseDataSource::GetTimeSpan(double&, double&) {
    return false;
}
double BaseDataSource::GetFirstElementTime() {
    return 0.0;
}
double BaseDataSource::GetLastElementTime() {
    return 0.0;
}
bool BaseDataSource::HandleAttribsChange(const CDataId&) {
    return false;
}

void BaseDataSource::ReportError(double, bool, std::int32_t) {}
std::int32_t BaseDataSource::GetError() {
    return 0;
}
bool BaseDataSource::MakeEmpty() {
    return false;
}
void BaseDataSource::SetGlobalEnableRecache(bool) {}
bool BaseDataSource::GetGlobalEnableRecache() {
    return true;
}

}  // namespace vex
