// VerticalOffsetLineData.h - another line seen shifted in height only.
//
// It keeps no points of its own: every question is answered by the wrapped
// line, with the vertical offset added to Z. The wrapped line is owned when
// the constructor says so.
//
//   vex::VerticalOffsetLineData lowered(&design, false);
//   lowered.SetOffset(-0.5);                 // half a metre deeper
//   vex::ProfilePoint p = lowered.DataPoint(0);
#pragma once

#include <base/Export.h>
#include <base/survey/LineData.h>

namespace vex {

class VEXBASE_API VerticalOffsetLineData : public LineData {
  public:
    // Wraps line (may be null: the line is then empty); owns it when owns is
    // true.
    VerticalOffsetLineData(LineData* line, bool owns);
    ~VerticalOffsetLineData() override;
    VerticalOffsetLineData(const VerticalOffsetLineData&) = delete;
    VerticalOffsetLineData& operator=(const VerticalOffsetLineData&) = delete;

    void SetOffset(double offset) { offset_ = offset; }
    double GetOffset() const { return offset_; }

    bool GetModelExtents(Page& extents) const override;
    bool LoadLineData(const CString& file, const CString& name, const CenterLine* centre) override;
    int NumDataPoints() const override;
    // The wrapped line's point with the offset added to Z.
    ProfilePoint DataPoint(int index) const override;
    // The wrapped line's answer with the offset added to Z; the chainage
    // look-up would otherwise find no points here.
    bool DataPoint(double chainage, ProfilePoint& out) const override;

    LineData* GetLine() const { return line_; }

  private:
    LineData* line_;
    bool ownsLine_;
    double offset_ = 0.0;
};

}  // namespace vex
