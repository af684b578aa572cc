// TreeItem.h - HTREEITEM, the handle of one item of a tree-view control.
//
// The library only stores and compares these handles (as keys of the
// tree-item maps); it never dereferences one, so any value the user
// interface hands out, null included, may be used.
//
//   vex::HTREEITEM item = ...;   // from the tree control
//   map.SetAt(item, info);
#pragma once

namespace vex {

// Never defined: the tree control owns what a handle refers to.
struct TreeItem;
using HTREEITEM = TreeItem*;

}  // namespace vex
