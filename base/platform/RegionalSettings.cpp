#include <base/platform/RegionalSettings.h>

namespace vex::platform {

// A comma already separates the decimals, so the list needs another mark;
// spreadsheet programs use the semicolon there.
std::u16string ListSeparatorForDecimal(std::u16string_view decimalSymbol) {
    return decimalSymbol == u"," ? u";" : u",";
}

}  // namespace vex::platform
