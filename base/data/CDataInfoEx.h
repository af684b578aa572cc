// CDataInfoEx.h - CDataInfoEx, one line of a display's data list: a
// CDataInfo plus what the display needs to show it (a user description,
// text attributes, decimals) or a separator line.
//
// Comparison (==, <) is CDataInfo's: it looks at the datum only, not at
// how it is shown. The full constructor always turns the default
// attributes on, whatever else it is given; the separator mark can be set
// but not cleared (assign a new value instead).
//
//   vex::CDataInfoEx line(vex::CDataId(5, 1001, 2, 0), 3, vex::CDataInfo::NO_INDEX,
//                         false, u"Heading", true, vex::DATATEXTATTRIBS{}, 1);
//   line.GetUserDescription();   // u"Heading"
//   line.IsDefaultattribsOn();   // true
#pragma once

#include <base/Export.h>
#include <base/data/CDataInfo.h>
#include <base/data/DataTextAttribs.h>

namespace vex {

class VEXBASE_API CDataInfoEx : public CDataInfo {
  public:
    // A default CDataInfo, no separator, no description, default attributes
    // on, zero text attributes, no default format, 0 decimals.
    CDataInfoEx() = default;
    // The datum of info with the display settings of a default line.
    explicit CDataInfoEx(const CDataInfo& info) : CDataInfo(info) {}
    // Sets every field from the arguments, except that the default
    // attributes are always on.
    CDataInfoEx(const CDataId& dataId, std::uint16_t elemId, std::uint16_t arrayIndex,
                bool separator, const CString& userDescription, bool defaultFmtSet,
                const DATATEXTATTRIBS& textAttribs, std::int32_t decimals);
    CDataInfoEx(const CDataInfoEx&) = default;
    CDataInfoEx(CDataInfoEx&&) noexcept = default;
    CDataInfoEx& operator=(const CDataInfoEx&) = default;
    CDataInfoEx& operator=(CDataInfoEx&&) noexcept = default;
    virtual ~CDataInfoEx();

    // Replaces the CDataInfo part only; the display settings stay.
    void SetDataInfo(const CDataInfo& info) { static_cast<CDataInfo&>(*this) = info; }
    CDataInfo GetDataInfo() const { return *this; }
    void GetDataInfo(CDataInfo& info) const { info = *this; }

    // Marks the line as a separator; there is no way to clear the mark.
    void SetSeparator() { separator_ = true; }
    bool IsSeparator() const { return separator_; }
    void SetUserDescription(const CString& description) { userDescription_ = description; }
    const CString& GetUserDescription() const { return userDescription_; }
    void SetDefaultattr(bool on) { defaultAttribs_ = on; }
    bool IsDefaultattribsOn() const { return defaultAttribs_; }
    void SetDataTxtAttr(const DATATEXTATTRIBS& attribs) { textAttribs_ = attribs; }
    DATATEXTATTRIBS GetDataTxtAttr() const { return textAttribs_; }
    void SetDefaultFmt(bool set) { defaultFmt_ = set; }
    bool IsDefaultFmtSet() const { return defaultFmt_; }
    void SetDecimals(std::int32_t decimals) { decimals_ = decimals; }
    std::int32_t GetDecimals() const { return decimals_; }

  private:
    bool separator_ = false;
    CString userDescription_;
    bool defaultAttribs_ = true;
    DATATEXTATTRIBS textAttribs_;
    bool defaultFmt_ = false;
    std::int32_t decimals_ = 0;
};

}  // namespace vex
