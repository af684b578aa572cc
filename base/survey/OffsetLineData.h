// OffsetLineData.h - a line derived from another: shifted sideways in plan
// and in height, optionally clipped at a maximum height.
//
// Positive offsets move the line to the right of the direction of
// increasing chainage, negative ones to the left (the convention of
// Line::Offset); every point keeps the chainage of the point it comes
// from. The wrapped line is owned when the constructor says so.
//
//   vex::OffsetLineData side(new MyDesignLine, true);
//   side.SetOffset(12.5);                    // 12.5 m to the right
//   side.SetMaxZ(-8.0, true);                // nothing above -8 m
//   side.LoadCached(u"design.dat", u"Trench A", nullptr);
#pragma once

#include <base/Export.h>
#include <base/survey/LineData.h>

namespace vex {

class VEXBASE_API OffsetLineData : public LineData {
  public:
    // Wraps line (may be null: nothing then loads); owns it when owns is true.
    OffsetLineData(LineData* line, bool owns);
    ~OffsetLineData() override;
    // Copying would share or double-free the wrapped line.
    OffsetLineData(const OffsetLineData&) = delete;
    OffsetLineData& operator=(const OffsetLineData&) = delete;

    void SetOffset(double offset) { offset_ = offset; }
    double GetOffset() const { return offset_; }
    void SetZShift(double shift) { zShift_ = shift; }
    double GetZShift() const { return zShift_; }
    void SetMaxZ(double maxZ, bool enabled) {
        maxZ_ = maxZ;
        maxZEnabled_ = enabled;
    }
    double GetMaxZ() const { return maxZ_; }
    bool IsMaxZEnabled() const { return maxZEnabled_; }
    // Offset points closer than this (plan distance) to the previous one are
    // dropped.
    double GetTolerance() const { return tolerance_; }

    // Builds this line's points from the wrapped line's: the sideways offset
    // within each segment, the Z shift, then the clip when it is enabled.
    //
    // A non-zero offset moves each segment as a whole: each edge is moved
    // sideways by the offset; where two moved edges cross (the inner side of
    // a corner) the crossing - the point on the corner's bisector - replaces
    // both ends, and where they part (the outer side) both ends are kept,
    // each exactly the offset away from the corner (a bevel: a miter length
    // limit of one offset). Loops that short edges on an inner side create
    // are cut out at the crossing (within the last 512 edges), points that
    // end up nearer than the offset to the segment are dropped, and so are
    // points within the tolerance of the previous kept point. A segment
    // without plan length gives no points. Segment starts stay segment
    // starts. False without a wrapped line.
    bool ApplyOffset();
    // Inserts a point, at the maximum Z, wherever two consecutive points of
    // one segment lie on opposite sides of it (x, y and chainage
    // interpolated), then lowers every point above the maximum to it.
    void ClipToMaxZ();

    // The plan extents of this line's own points; false when it has none.
    bool GetModelExtents(Page& extents) const override;
    // Passed on to the wrapped line.
    void SetAttributes(const CAttributeMap& attributes) override;
    // Empties this line, loads the wrapped line and, when that succeeds,
    // applies the offset. Returns the wrapped line's result.
    bool LoadLineData(const CString& file, const CString& name, const CenterLine* centre) override;

    LineData* GetLine() const { return line_; }

  private:
    double offset_ = 0.0;
    double zShift_ = 0.0;
    double maxZ_ = 0.0;
    bool maxZEnabled_ = false;
    double tolerance_ = 0.1;
    LineData* line_;
    bool ownsLine_;
};

}  // namespace vex
