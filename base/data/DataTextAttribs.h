// DataTextAttribs.h - DATATEXTATTRIBS, the text attributes with which a
// display shows one datum.
//
// The library only stores and copies these; what each field means is set
// by the display code that uses them, hence the neutral names. All zero,
// false and empty by default.
//
//   vex::DATATEXTATTRIBS attribs;
//   attribs.text = u"Arial";
//   entry.SetDataTxtAttr(attribs);
#pragma once

#include <base/framework/CString.h>

#include <cstdint>

namespace vex {

struct DATATEXTATTRIBS {
    std::int32_t number1 = 0;
    std::int32_t number2 = 0;
    CString text;
    bool flag1 = false;
    bool flag2 = false;
    std::int32_t number3 = 0;

    friend bool operator==(const DATATEXTATTRIBS&, const DATATEXTATTRIBS&) = default;
};

}  // namespace vex
