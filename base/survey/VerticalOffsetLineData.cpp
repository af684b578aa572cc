#include <base/survey/VerticalOffsetLineData.h>

namespace vex {

VerticalOffsetLineData::VerticalOffsetLineData(LineData* line, bool owns)
    : line_(line), ownsLine_(owns) {}

VerticalOffsetLineData::~VerticalOffsetLineData() {
    if (ownsLine_) {
        delete line_;
    }
}

bool VerticalOffsetLineData::GetModelExtents(Page& extents) const {
    return line_ != nullptr && line_->GetModelExtents(extents);
}

bool VerticalOffsetLineData::LoadLineData(const CString& file, const CString& name,
                                          const CenterLine* centre) {
    return line_ != nullptr && line_->LoadLineData(file, name, centre);
}

int VerticalOffsetLineData::NumDataPoints() const {
    return line_ != nullptr ? line_->NumDataPoints() : 0;
}

ProfilePoint VerticalOffsetLineData::DataPoint(int index) const {
    if (line_ == nullptr) {
        return {};
    }
    ProfilePoint p = line_->DataPoint(index);
    p.z += offset_;
    return p;
}

bool VerticalOffsetLineData::DataPoint(double chainage, ProfilePoint& out) const {
    ProfilePoint p;
    if (line_ == nullptr || !line_->DataPoint(chainage, p)) {
        return false;
    }
    p.z += offset_;
    out = p;
    return true;
}

}  // namespace vex
