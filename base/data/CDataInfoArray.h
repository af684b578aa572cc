// CDataInfoArray.h - CDataInfoArray, the ordered list of lines of a
// display's data list (CDataInfoEx values).
//
// A CArray<CDataInfoEx>: indices from 0, out-of-range indices throw
// std::invalid_argument. Copies are independent of their source.
//
//   vex::CDataInfoArray list;
//   list.Add(vex::CDataInfoEx(info));
//   vex::CDataInfoArray saved = list;   // changing list leaves saved alone
#pragma once

#include <base/Export.h>
#include <base/data/CDataInfoEx.h>
#include <base/framework/CArray.h>

namespace vex {

class VEXBASE_API CDataInfoArray : public CArray<CDataInfoEx> {
  public:
    CDataInfoArray() = default;
    // Sized to the source, then assigned element by element.
    CDataInfoArray(const CDataInfoArray& other);
    CDataInfoArray& operator=(const CDataInfoArray& other);
    ~CDataInfoArray() override;
};

}  // namespace vex
