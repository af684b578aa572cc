#include <base/survey/LineData.h>

#include <algorithm>
#include <cmath>

namespace vex {
namespace {

// The end tolerance of chainage look-ups: 100 machine epsilons, relative.
bool NearlyEqual(double a, double b) {
    return std::abs(a - b) <= 100.0 * 2.220446049250313e-16 * std::max(std::abs(a), std::abs(b));
}

}  // namespace

LineData::~LineData() = default;
LineDataICreator::~LineDataICreator() = default;

bool LineData::GetModelExtents(Page&) const {
    return false;
}

void LineData::SetAttributes(const CAttributeMap&) {}

bool LineData::LoadLineData(const CString&, const CString&, const CenterLine*) {
    if (points_.size() < 2) {
        return true;
    }
    points_.front().segmentStart = true;
    if (!(points_.front().chainage > points_.back().chainage)) {
        return true;
    }
    // Descending: after reversal the last point of each segment comes first,
    // so the flag moves from a segment's first point to the point before it.
    points_.front().segmentStart = false;
    for (std::size_t i = 1; i < points_.size(); ++i) {
        if (points_[i].segmentStart) {
            points_[i].segmentStart = false;
            points_[i - 1].segmentStart = true;
        }
    }
    points_.back().segmentStart = true;
    std::reverse(points_.begin(), points_.end());
    return true;
}

int LineData::NumDataPoints() const {
    return static_cast<int>(points_.size());
}

bool LineData::DataPoint(double chainage, ProfilePoint& out) const {
    if (points_.empty()) {
        return false;
    }
    // The first point at or above the chainage. Written out rather than
    // std::lower_bound so that unordered or NaN chainages in a hand-made line
    // give some answer, never undefined behaviour.
    std::size_t low = 0;
    std::size_t count = points_.size();
    while (count > 0) {
        const std::size_t half = count / 2;
        if (points_[low + half].chainage < chainage) {
            low += half + 1;
            count -= half + 1;
        } else {
            count = half;
        }
    }
    if (low == points_.size()) {
        if (!NearlyEqual(points_.back().chainage, chainage)) {
            return false;
        }
        out = points_.back();
        return true;
    }
    if (low == 0) {
        if (!NearlyEqual(points_.front().chainage, chainage)) {
            return false;
        }
        out = points_.front();
        return true;
    }
    const ProfilePoint& before = points_[low - 1];
    const ProfilePoint& after = points_[low];
    if (before.chainage == 0.0 || after.chainage == 0.0 || after.segmentStart) {
        return false;
    }
    const double t = (chainage - before.chainage) / (after.chainage - before.chainage);
    out.x = before.x + t * (after.x - before.x);
    out.y = before.y + t * (after.y - before.y);
    out.z = before.z + t * (after.z - before.z);
    out.chainage = chainage;
    out.segmentStart = false;
    return true;
}

ProfilePoint LineData::DataPoint(int index) const {
    if (index < 0 || static_cast<std::size_t>(index) >= points_.size()) {
        return {};
    }
    return points_[static_cast<std::size_t>(index)];
}

bool LineData::LoadCached(const CString& file, const CString& name, const CenterLine* centre) {
    CString key = file;
    key += u',';
    key += name;
    if (const auto found = cache_.find(key); found != cache_.end()) {
        points_ = found->second;
    } else {
        if (!LoadLineData(file, name, centre)) {
            points_.clear();
        }
        cache_.emplace(std::move(key), points_);
    }
    return !points_.empty();
}

}  // namespace vex
