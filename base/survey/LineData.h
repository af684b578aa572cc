// LineData.h - line data: a polyline of profile points along a centre line
// (a design profile, a cable route), looked up by chainage.
//
// Points are held ascending by chainage, in one or more segments; a point
// with segmentStart set begins a segment and interpolation never crosses
// into it. A chainage of exactly 0.0 counts as missing. Concrete line
// types fill Points() from their files and then call LineData::LoadLineData,
// which puts the points in ascending order. This is the chief header of line
// data: it also brings in the registry and the two offset lines.
//
//   MyDesignLine line;                        // derived from vex::LineData
//   line.LoadCached(u"design.dat", u"Trench A", nullptr);
//   vex::ProfilePoint p;
//   if (line.DataPoint(1250.0, p)) use(p.x, p.y, p.z);
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>
#include <base/framework/SuiteTypes.h>
#include <base/geometry/Page.h>

#include <map>
#include <vector>

namespace vex {

// A point of a profile: position (x east, y north, z up), its chainage (the
// distance along the centre line) and whether it begins a segment.
struct ProfilePoint {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    double chainage = 0.0;
    bool segmentStart = false;

    friend bool operator==(const ProfilePoint&, const ProfilePoint&) = default;
};

class VEXBASE_API LineData {
  public:
    LineData() = default;
    LineData(const LineData&) = default;
    LineData& operator=(const LineData&) = default;
    virtual ~LineData();

    // The plan extents of the line; the base class has none and says false.
    virtual bool GetModelExtents(Page& extents) const;
    // Display attributes of the line; the base class ignores them.
    virtual void SetAttributes(const CAttributeMap& attributes);
    // Concrete loaders read their file into Points() and then call this base
    // version, which puts the points in ascending chainage: points delivered
    // descending are reversed, with each segment-start flag moved so that the
    // segments keep their points. Always true.
    virtual bool LoadLineData(const CString& file, const CString& name, const CenterLine* centre);
    virtual int NumDataPoints() const;
    // The point at a chainage, interpolated linearly inside a segment. False
    // for an empty line, for a chainage between two points of which one has
    // chainage 0.0 or the later one starts a segment, and outside the line
    // (a chainage within 100 machine epsilons of either end gives that end
    // point). A NaN chainage gives false. `out` is unchanged on false.
    virtual bool DataPoint(double chainage, ProfilePoint& out) const;
    // The point at index (from 0). Out of range gives a default point rather
    // than reading outside the list.
    virtual ProfilePoint DataPoint(int index) const;
    // Loads through LoadLineData once per file and name: later calls with the
    // same pair take the points from the cache (an empty result is cached
    // too). True when the line then has at least one point.
    virtual bool LoadCached(const CString& file, const CString& name, const CenterLine* centre);

    const std::vector<ProfilePoint>& GetPoints() const { return points_; }

  protected:
    std::vector<ProfilePoint>& Points() { return points_; }

  private:
    std::vector<ProfilePoint> points_;
    std::map<CString, std::vector<ProfilePoint>> cache_;
};

// Makes line data of one type; registered with LineDataList by type number.
class VEXBASE_API LineDataICreator {
  public:
    virtual ~LineDataICreator();
    // A new line owned by the caller, or null.
    virtual LineData* Create(const CString& name) = 0;
};

}  // namespace vex

// The rest of the line-data interface, so that this header gives all of it.
#include <base/survey/LineDataList.h>
#include <base/survey/OffsetLineData.h>
#include <base/survey/VerticalOffsetLineData.h>
