// VesselContour.h - VesselContour, the outline drawn for a vessel in plan
// and side views, kept per view side in a settings file, and its compact
// binary string form.
//
// A contour file is a settings file (FileObject) with the pen in section
// "DRAW" ("PenWidth", "PenColor") and one section of point lines per view
// side: "POINTS" (the plan outline, side 0 and every side not listed
// below), "BOTTOM POINTS" (1), "LEFT POINTS" (2), "RIGHT POINTS" (3),
// "FRONT POINTS" (4), "BACK POINTS" (5). Keys are "Point(1)", "Point(2)",
// ... without gaps: the first missing key ends the outline. A point line is
// "x, y, flags[, value]"; flags bit 0 is flag A, bit 1 flag B.
//
// Points are indexed from 1, as in the editors that use this class. Side
// views are drawn in their own plane; with conversion on loading, a left or
// right view's (x, y) become the vessel point (0, x, y) and a front or back
// view's become (x, 0, y). The object is not locked: one thread at a time.
//
//   vex::VesselContour hull;
//   if (hull.Create(u"C:\\Vex\\dredger.ves", 0, false)) {
//       vex::Page extents;
//       hull.GetExtents(extents);
//   }
#pragma once

#include <base/Export.h>
#include <base/config/FileObject.h>
#include <base/framework/CString.h>
#include <base/geometry/Page.h>
#include <base/geometry/Point.h>
#include <base/survey/VesselPoint.h>

#include <string>
#include <vector>

namespace vex {

class CDC;
class CoordinateSystem;

class VEXBASE_API VesselContour {
  public:
    // The view sides; every other value selects the plan outline too.
    enum VIEWSIDE : int {
        viewPlan = 0,
        viewBottom = 1,
        viewLeft = 2,
        viewRight = 3,
        viewFront = 4,
        viewBack = 5,
    };

    // Not loaded, no points, pen width 1, pen colour 0, the plan outline,
    // point format not yet known (0).
    VesselContour() = default;

    // The section that holds the points of side: "POINTS" for the plan
    // outline and every side without a section of its own.
    static CString GetSectionName(int side);

    // --- files ----------------------------------------------------------
    // Opens fileName and loads the pen and the points of side, converting
    // a side view's points to vessel coordinates when convert is set.
    // A file that cannot be opened (or has no section at all) gives the
    // default contour and false. A file without "DRAW" gives pen width 1
    // and colour 0. A missing side section is no failure: the contour is
    // then empty and not loaded. A point line that cannot be read ends the
    // outline before it.
    bool Create(const CString& fileName, int side, bool convert);
    // Writes the pen and the current side's points (their stored x and y,
    // never converted back) into the file content and saves it all under
    // fileName, in one step. False for an empty name or when the file
    // cannot be written; an existing file is then left as it was.
    bool Save(const CString& fileName);
    // Keeps the current side's points in the file content, then loads
    // side's points (without conversion). Always true.
    bool SetViewSide(int side);
    // True after a side's section or a binary string was read.
    bool IsLoaded() const { return loaded_; }
    // The settings file content the contour was created from.
    const FileObject& GetFileObject() const { return file_; }

    // --- pen, side and format ---------------------------------------------
    int GetViewSide() const { return viewSide_; }
    bool GetViewSide(int& side) const;
    // The number of fields of the point lines last read (3 or 4); 0 until
    // one was read. Once known, later lines are read with that many fields.
    int GetFormat() const { return format_; }
    bool GetFormat(int& format) const;
    int GetPenWidth() const { return penWidth_; }
    bool GetPenWidth(int& width) const;
    void SetPenWidth(int width) { penWidth_ = width; }
    // The colour as stored, 0x00BBGGRR.
    int GetPenColor() const { return penColor_; }
    bool GetPenColor(int& colour) const;
    void SetPenColor(int colour) { penColor_ = colour; }

    // --- points, indexed from 1 -----------------------------------------------
    int GetSize() const { return static_cast<int>(points_.size()); }
    // Each returns false, changing nothing, for an index below 1 or above
    // GetSize(). InsertPoint inserts before the point at index.
    bool GetPoint(int index, VesselPoint& point) const;
    bool SetPoint(int index, const VesselPoint& point);
    bool InsertPoint(int index, const VesselPoint& point);
    bool DeletePoint(int index);
    // Appends point; always true.
    bool AddPoint(const VesselPoint& point);
    void DeleteAllPoints() { points_.clear(); }
    const std::vector<VesselPoint>& GetPoints() const { return points_; }

    // The bounding rectangle of the points' x and y; the empty page
    // (1, 1, -1, -1) when there are none. Always true.
    bool GetExtents(Page& extents) const;
    // The same rectangle; false, page unchanged, for a contour without points.
    bool GetBoundingPage(Page& page) const;
    // The centre of the bounding page, z 0; false, point unchanged, when
    // there is nothing to bound.
    bool GetCenterPoint(Point& centre) const;

    // Pen width 0, colour 0 and a simple hull, bow towards +y, closed by
    // repeating its first point: (-5, -7) with flag A, (-5, 7), (0, 10),
    // (5, 7), (5, -7), (-5, -7). Not loaded.
    void SetDefaultContour();

    // --- drawing ----------------------------------------------------------------
    // Draws the outline, closed back to its first point, with the contour's
    // pen (width in pixels, 0 drawing one pixel wide) through view onto dc;
    // a point with flag A gets a square mark, one with flag B a circle. A
    // side view converted on loading is drawn in its own plane again (along
    // or across the ship, and up). The dc's pen and brush are as before
    // afterwards. False, drawing nothing, for a contour without points.
    bool Draw(CDC& dc, const CoordinateSystem& view) const;

    // --- binary string form ---------------------------------------------------
    // Little-endian, no padding: pen colour (4 bytes), pen width (4), then
    // per point x (8), y (8), flag A (1), flag B (1): 8 + 18 n bytes. z and
    // the value are not carried. Always true.
    bool SaveToString(std::string& bytes) const;
    // Removes all points, then reads the form above. Fewer than 9 bytes:
    // false and not loaded (the pen is kept). A trailing part of a record
    // is ignored.
    bool LoadFromString(const std::string& bytes);

  private:
    // The position drawn for point: x and y, or for a converted side view
    // its coordinates in the view's plane.
    Point DrawingPosition(const VesselPoint& point) const;
    bool LoadShape(bool convert);
    void SaveShape();
    bool ReadPointLine(const CString& line, VesselPoint& point);

    bool loaded_ = false;
    int penWidth_ = 1;
    int penColor_ = 0;
    std::vector<VesselPoint> points_;
    int viewSide_ = viewPlan;
    FileObject file_;
    int format_ = 0;
    // Whether the points were turned into vessel coordinates on loading,
    // so that drawing can take them back to the view's plane.
    bool converted_ = false;
};

}  // namespace vex
