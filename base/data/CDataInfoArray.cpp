#include <base/data/CDataInfoArray.h>

namespace vex {

CDataInfoArray::CDataInfoArray(const CDataInfoArray& other) : CArray<CDataInfoEx>() {
    SetSize(other.GetSize());
    for (int i = 0; i < other.GetSize(); ++i) {
        SetAt(i, other.GetAt(i));
    }
}

CDataInfoArray& CDataInfoArray::operator=(const CDataInfoArray& other) {
    if (this != &other) Copy(other);
    return *this;
}

CDataInfoArray::~CDataInfoArray() = default;

}  // namespace vex
