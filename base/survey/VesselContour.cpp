#include <base/survey/VesselContour.h>

#include <base/framework/Format.h>
#include <base/framework/LittleEndian.h>
#include <base/framework/Scan.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace vex {
namespace {

const CString kDrawSection(u"DRAW");
const CString kPenWidthKey(u"PenWidth");
const CString kPenColorKey(u"PenColor");

constexpr std::size_t kHeaderBytes = 8;
constexpr std::size_t kRecordBytes = 18;

CString PointKey(int n) {
    return CString(Format(u"Point(%d)", n));
}

// The file keeps pen values as "%ld"; long is 64 bits on some hosts, and the
// contour's fields are 32 bits as in the binary form.
int ReadLong(const FileObject& file, const CString& key, int fallback) {
    long value = fallback;
    file.GetItem(kDrawSection, key, value);
    return static_cast<int>(static_cast<std::int32_t>(static_cast<std::uint32_t>(value)));
}

template <class T>
void Append(std::string& bytes, T value) {
    for (const std::byte b : ToLittleEndian(value))
        bytes.push_back(static_cast<char>(b));
}

template <class T>
T Read(const std::string& bytes, std::size_t offset) {
    std::array<std::byte, sizeof(T)> raw{};
    for (std::size_t i = 0; i < sizeof(T); ++i)
        raw[i] = static_cast<std::byte>(bytes[offset + i]);
    return FromLittleEndian<T>(std::span<const std::byte, sizeof(T)>(raw));
}

bool ValidIndex(int index, std::size_t size) {
    return index >= 1 && static_cast<std::size_t>(index) <= size;
}

}  // namespace

CString VesselContour::GetSectionName(int side) {
    switch (side) {
        case viewBottom:
            return CString(u"BOTTOM POINTS");
        case viewLeft:
            return CString(u"LEFT POINTS");
        case viewRight:
            return CString(u"RIGHT POINTS");
        case viewFront:
            return CString(u"FRONT POINTS");
        case viewBack:
            return CString(u"BACK POINTS");
        default:
            return CString(u"POINTS");
    }
}

bool VesselContour::Create(const CString& fileName, int side, bool convert) {
    viewSide_ = side;
    file_.FileClose();
    if (!file_.FileOpen(fileName)) {
        SetDefaultContour();
        return false;
    }
    points_.clear();
    if (file_.HasSection(kDrawSection)) {
        penWidth_ = ReadLong(file_, kPenWidthKey, penWidth_);
        penColor_ = ReadLong(file_, kPenColorKey, penColor_);
    } else {
        penWidth_ = 1;
        penColor_ = 0;
    }
    return LoadShape(convert);
}

bool VesselContour::Save(const CString& fileName) {
    if (fileName.IsEmpty()) return false;
    if (file_.HasSection(kDrawSection)) file_.DeleteSection(kDrawSection);
    file_.SetItem(kDrawSection, kPenWidthKey, static_cast<long>(penWidth_));
    file_.SetItem(kDrawSection, kPenColorKey, static_cast<long>(penColor_));
    SaveShape();
    return file_.FileSave(fileName);
}

bool VesselContour::SetViewSide(int side) {
    if (side == viewSide_) return true;
    SaveShape();
    viewSide_ = side;
    LoadShape(false);
    return true;
}

bool VesselContour::ReadPointLine(const CString& line, VesselPoint& point) {
    double x = 0.0;
    double y = 0.0;
    int flags = 0;
    unsigned long value = 0;
    const std::u16string_view text = line.View();
    // Once the file has shown its form, every line must have it: a line of
    // the other form is not guessed at.
    if (format_ == 4) {
        if (Scan(text, u"%lf,%lf,%d,%lu", &x, &y, &flags, &value) != 4) return false;
    } else if (format_ == 3) {
        if (Scan(text, u"%lf,%lf,%d", &x, &y, &flags) != 3) return false;
    } else if (Scan(text, u"%lf,%lf,%d,%lu", &x, &y, &flags, &value) == 4) {
        format_ = 4;
    } else {
        value = 0;
        if (Scan(text, u"%lf,%lf,%d", &x, &y, &flags) != 3) return false;
        format_ = 3;
    }
    point = VesselPoint(Point(x, y), false, false);
    point.SetValue(static_cast<std::uint32_t>(value));
    if (flags > 0) {
        point.SetFlagA((flags & 1) != 0);
        point.SetFlagB((flags & 2) != 0);
    }
    return true;
}

bool VesselContour::LoadShape(bool convert) {
    points_.clear();
    loaded_ = false;
    converted_ = convert;
    const CString section = GetSectionName(viewSide_);
    if (!file_.HasSection(section)) return true;
    CString line;
    for (int n = 1; file_.GetItem(section, PointKey(n), line); ++n) {
        VesselPoint point;
        if (!ReadPointLine(line, point)) break;
        if (convert) {
            Point& p = point.GetPoint();
            if (viewSide_ == viewLeft || viewSide_ == viewRight) {
                p = Point(0.0, p.x, p.y);
            } else if (viewSide_ == viewFront || viewSide_ == viewBack) {
                p = Point(p.x, 0.0, p.y);
            }
        }
        points_.push_back(point);
    }
    loaded_ = true;
    return true;
}

void VesselContour::SaveShape() {
    const CString section = GetSectionName(viewSide_);
    if (file_.HasSection(section)) file_.DeleteSection(section);
    int n = 1;
    for (const VesselPoint& point : points_) {
        const Point& p = point.GetPoint();
        file_.SetItem(section, PointKey(n++),
                      CString(Format(u"%f, %f, %d, %lu", p.x, p.y, point.GetFlags(),
                                     static_cast<unsigned long>(point.GetValue()))));
    }
}

bool VesselContour::GetViewSide(int& side) const {
    side = viewSide_;
    return true;
}

bool VesselContour::GetFormat(int& format) const {
    format = format_;
    return true;
}

bool VesselContour::GetPenWidth(int& width) const {
    width = penWidth_;
    return true;
}

bool VesselContour::GetPenColor(int& colour) const {
    colour = penColor_;
    return true;
}

bool VesselContour::GetPoint(int index, VesselPoint& point) const {
    if (!ValidIndex(index, points_.size())) return false;
    point = points_[static_cast<std::size_t>(index - 1)];
    return true;
}

bool VesselContour::SetPoint(int index, const VesselPoint& point) {
    if (!ValidIndex(index, points_.size())) return false;
    points_[static_cast<std::size_t>(index - 1)] = point;
    return true;
}

bool VesselContour::InsertPoint(int index, const VesselPoint& point) {
    if (!ValidIndex(index, points_.size())) return false;
    points_.insert(points_.begin() + (index - 1), point);
    return true;
}

bool VesselContour::DeletePoint(int index) {
    if (!ValidIndex(index, points_.size())) return false;
    points_.erase(points_.begin() + (index - 1));
    return true;
}

bool VesselContour::AddPoint(const VesselPoint& point) {
    points_.push_back(point);
    return true;
}

bool VesselContour::GetExtents(Page& extents) const {
    Page bounds;
    for (const VesselPoint& point : points_) {
        const Point& p = point.GetPoint();
        if (bounds.IsEmpty()) {
            bounds = Page(p.x, p.y, p.x, p.y);
            continue;
        }
        bounds.x1 = std::min(bounds.x1, p.x);
        bounds.y1 = std::min(bounds.y1, p.y);
        bounds.x2 = std::max(bounds.x2, p.x);
        bounds.y2 = std::max(bounds.y2, p.y);
    }
    extents = bounds;
    return true;
}

bool VesselContour::GetBoundingPage(Page& page) const {
    if (points_.empty()) return false;
    return GetExtents(page);
}

bool VesselContour::GetCenterPoint(Point& centre) const {
    Page page;
    if (!GetBoundingPage(page)) return false;
    centre = Point((page.x1 + page.x2) / 2.0, (page.y1 + page.y2) / 2.0, 0.0);
    return true;
}

void VesselContour::SetDefaultContour() {
    penWidth_ = 0;
    penColor_ = 0;
    loaded_ = false;
    converted_ = false;
    points_ = {
        VesselPoint(Point(-5.0, -7.0), true, false), VesselPoint(Point(-5.0, 7.0), false, false),
        VesselPoint(Point(0.0, 10.0), false, false), VesselPoint(Point(5.0, 7.0), false, false),
        VesselPoint(Point(5.0, -7.0), false, false), VesselPoint(Point(-5.0, -7.0), false, false),
    };
}

bool VesselContour::SaveToString(std::string& bytes) const {
    std::string out;
    out.reserve(kHeaderBytes + kRecordBytes * points_.size());
    Append(out, static_cast<std::int32_t>(penColor_));
    Append(out, static_cast<std::int32_t>(penWidth_));
    for (const VesselPoint& point : points_) {
        Append(out, point.GetPoint().x);
        Append(out, point.GetPoint().y);
        out.push_back(point.GetFlagA() ? '\1' : '\0');
        out.push_back(point.GetFlagB() ? '\1' : '\0');
    }
    bytes = std::move(out);
    return true;
}

bool VesselContour::LoadFromString(const std::string& bytes) {
    points_.clear();
    converted_ = false;
    if (bytes.size() < kHeaderBytes + 1) {
        loaded_ = false;
        return false;
    }
    penColor_ = Read<std::int32_t>(bytes, 0);
    penWidth_ = Read<std::int32_t>(bytes, 4);
    for (std::size_t at = kHeaderBytes; bytes.size() - at >= kRecordBytes; at += kRecordBytes) {
        points_.emplace_back(Point(Read<double>(bytes, at), Read<double>(bytes, at + 8)),
                             bytes[at + 16] != '\0', bytes[at + 17] != '\0');
    }
    loaded_ = true;
    return true;
}

}  // namespace vex
