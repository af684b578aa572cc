#include <base/survey/OffsetLineData.h>

#include <base/survey/PolylineOffset.h>

#include <algorithm>
#include <span>

namespace vex {

OffsetLineData::OffsetLineData(LineData* line, bool owns) : line_(line), ownsLine_(owns) {}

OffsetLineData::~OffsetLineData() {
    if (ownsLine_) {
        delete line_;
    }
}

bool OffsetLineData::ApplyOffset() {
    std::vector<ProfilePoint>& points = Points();
    points.clear();
    if (line_ == nullptr) {
        return false;
    }
    // Through the virtual interface: a wrapped line need not keep points of
    // its own (a VerticalOffsetLineData answers from its own wrapped line).
    std::vector<ProfilePoint> source(static_cast<std::size_t>(std::max(line_->NumDataPoints(), 0)));
    for (std::size_t i = 0; i < source.size(); ++i) {
        source[i] = line_->DataPoint(static_cast<int>(i));
        source[i].z += zShift_;
    }
    if (source.empty()) {
        return true;
    }
    if (offset_ == 0.0) {
        points = std::move(source);
    } else {
        std::size_t begin = 0;
        while (begin < source.size()) {
            std::size_t end = begin + 1;
            while (end < source.size() && !source[end].segmentStart) {
                ++end;
            }
            const auto moved = detail::OffsetSegment(std::span(source).subspan(begin, end - begin),
                                                     offset_, tolerance_);
            points.insert(points.end(), moved.begin(), moved.end());
            begin = end;
        }
    }
    if (maxZEnabled_) {
        ClipToMaxZ();
    }
    return true;
}

void OffsetLineData::ClipToMaxZ() {
    const std::vector<ProfilePoint>& points = Points();
    std::vector<ProfilePoint> clipped;
    clipped.reserve(points.size());
    for (std::size_t i = 0; i < points.size(); ++i) {
        const ProfilePoint& current = points[i];
        if (i > 0 && !current.segmentStart) {
            const ProfilePoint& previous = points[i - 1];
            if ((previous.z - maxZ_) * (current.z - maxZ_) < 0.0) {
                const double t = (maxZ_ - previous.z) / (current.z - previous.z);
                clipped.push_back({previous.x + t * (current.x - previous.x),
                                   previous.y + t * (current.y - previous.y), maxZ_,
                                   previous.chainage + t * (current.chainage - previous.chainage),
                                   false});
            }
        }
        clipped.push_back(current);
    }
    for (ProfilePoint& p : clipped) {
        p.z = std::min(p.z, maxZ_);
    }
    Points() = std::move(clipped);
}

bool OffsetLineData::GetModelExtents(Page& extents) const {
    const std::vector<ProfilePoint>& points = GetPoints();
    if (points.empty()) {
        return false;
    }
    Page box(points.front().x, points.front().y, points.front().x, points.front().y);
    for (const ProfilePoint& p : points) {
        box.x1 = std::min(box.x1, p.x);
        box.y1 = std::min(box.y1, p.y);
        box.x2 = std::max(box.x2, p.x);
        box.y2 = std::max(box.y2, p.y);
    }
    extents = box;
    return true;
}

void OffsetLineData::SetAttributes(const CAttributeMap& attributes) {
    if (line_ != nullptr) {
        line_->SetAttributes(attributes);
    }
}

bool OffsetLineData::LoadLineData(const CString& file, const CString& name,
                                  const CenterLine* centre) {
    Points().clear();
    if (line_ == nullptr || !line_->LoadLineData(file, name, centre)) {
        return false;
    }
    ApplyOffset();
    return true;
}

}  // namespace vex
