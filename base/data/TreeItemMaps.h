// TreeItemMaps.h - the maps that tie the items of a tree view to the data
// (CDataInfo) and lever-arm offsets (CCompOffset) they stand for.
//
// Both are CMap hash maps (17 buckets to start with, growing as items are
// added) keyed by the tree item's handle, which the library never
// dereferences. GetItemHandle is the reverse lookup: a walk over every
// entry in the map's iteration order, so it costs time in proportion to
// the number of items and, when several items hold equal values, returns
// the first that iteration reaches, not the first added.
//
//   vex::CMapTreeitemToDatainfo items;
//   items.SetAt(treeItem, info);
//   vex::HTREEITEM found = nullptr;
//   if (items.GetItemHandle(info, found)) { ... }   // found == treeItem
#pragma once

#include <base/Export.h>
#include <base/data/CCompOffset.h>
#include <base/data/CDataInfo.h>
#include <base/framework/CMap.h>
#include <base/framework/TreeItem.h>

namespace vex {

class VEXBASE_API CMapTreeitemToDatainfo : public CMap<HTREEITEM, CDataInfo> {
  public:
    explicit CMapTreeitemToDatainfo(int blockSize = 10) : CMap(blockSize) {}
    CMapTreeitemToDatainfo(const CMapTreeitemToDatainfo&) = default;
    CMapTreeitemToDatainfo& operator=(const CMapTreeitemToDatainfo&) = default;
    ~CMapTreeitemToDatainfo() override;

    // True, with item set, for the first entry in iteration order whose
    // value equals info; false, with item unchanged, when there is none.
    bool GetItemHandle(const CDataInfo& info, HTREEITEM& item) const;
};

class VEXBASE_API CMapTreeitemToOffset : public CMap<HTREEITEM, CCompOffset> {
  public:
    explicit CMapTreeitemToOffset(int blockSize = 10) : CMap(blockSize) {}
    CMapTreeitemToOffset(const CMapTreeitemToOffset&) = default;
    CMapTreeitemToOffset& operator=(const CMapTreeitemToOffset&) = default;
    ~CMapTreeitemToOffset() override;

    // As above, by CCompOffset's equality: an offset of unknown type is
    // never found.
    bool GetItemHandle(const CCompOffset& offset, HTREEITEM& item) const;
};

}  // namespace vex
