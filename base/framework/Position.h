// Position.h - POSITION, the framework's opaque iterator of its collections.
//
// A POSITION names one entry of a collection (CMap) between calls; null
// means "no more entries". It is valid until that entry is removed or the
// collection is changed in a way that moves entries (a CMap growing its
// table). Callers only pass it back; they never dereference it.
//
//   vex::POSITION pos = map.GetStartPosition();
//   while (pos != nullptr) map.GetNextAssoc(pos, key, value);
#pragma once

namespace vex {

// Never defined: POSITION is a handle, not something to look into.
struct PositionTag;
using POSITION = PositionTag*;

}  // namespace vex
