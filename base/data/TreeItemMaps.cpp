#include <base/data/TreeItemMaps.h>

namespace vex {

namespace {

template <class V>
bool FindFirstItem(const CMap<HTREEITEM, V>& map, const V& wanted, HTREEITEM& item) {
    HTREEITEM key = nullptr;
    V value;
    for (POSITION pos = map.GetStartPosition(); pos != nullptr;) {
        map.GetNextAssoc(pos, key, value);
        if (value == wanted) {
            item = key;
            return true;
        }
    }
    return false;
}

}  // namespace

CMapTreeitemToDatainfo::~CMapTreeitemToDatainfo() = default;

bool CMapTreeitemToDatainfo::GetItemHandle(const CDataInfo& info, HTREEITEM& item) const {
    return FindFirstItem<CDataInfo>(*this, info, item);
}

CMapTreeitemToOffset::~CMapTreeitemToOffset() = default;

bool CMapTreeitemToOffset::GetItemHandle(const CCompOffset& offset, HTREEITEM& item) const {
    return FindFirstItem<CCompOffset>(*this, offset, item);
}

}  // namespace vex
