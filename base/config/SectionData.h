// SectionData.h - internal: the items of one configuration-file section
// (key to value, in the order the keys were added), shared by the file
// object and the section handles that refer to it. Not installed; only the
// library's configuration code includes it.
#pragma once

#include <base/config/OrderedTable.h>
#include <base/framework/CString.h>

namespace vex::detail {

class SectionData : public OrderedTable<CString> {};

}  // namespace vex::detail
