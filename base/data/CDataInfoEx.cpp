#include <base/data/CDataInfoEx.h>

namespace vex {

CDataInfoEx::CDataInfoEx(const CDataId& dataId, std::uint16_t elemId, std::uint16_t arrayIndex,
                         bool separator, const CString& userDescription, bool defaultFmtSet,
                         const DATATEXTATTRIBS& textAttribs, std::int32_t decimals)
    : CDataInfo(dataId, elemId, arrayIndex),
      separator_(separator),
      userDescription_(userDescription),
      defaultAttribs_(true),
      textAttribs_(textAttribs),
      defaultFmt_(defaultFmtSet),
      decimals_(decimals) {}

// Out of line, so that the class's virtual table lives in the library.
CDataInfoEx::~CDataInfoEx() = default;

}  // namespace vex
