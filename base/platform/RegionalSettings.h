// RegionalSettings.h - the user's number conventions for exported text: the
// decimal symbol and the list separator that a spreadsheet program expects.
//
// Windows gives both from the user's locale. POSIX has no list separator: it
// is ";" where the decimal symbol is "," and "," otherwise, and the decimal
// symbol is that of the numeric locale named by the environment (LC_ALL,
// else LC_NUMERIC, else LANG). The process locale is never changed.
#pragma once

#include <base/Export.h>

#include <string>
#include <string_view>

namespace vex::platform {

// Decimal symbol and list separator; an empty text means the system could
// not tell (the locale does not exist, or the query failed).
struct RegionalSettings {
    std::u16string decimalSymbol;
    std::u16string listSeparator;
};

// The current user's settings. POSIX: an unset or empty environment means
// the "C" locale ("." and ","); a name that no installed locale matches
// gives empty texts.
VEXBASE_API RegionalSettings UserRegionalSettings();

// The settings of a named locale, in the platform's naming: "de-DE" on
// Windows, "de_DE.UTF-8" on POSIX. Empty texts when no such locale exists.
VEXBASE_API RegionalSettings LocaleRegionalSettings(const char* localeName);

// The list separator that goes with a decimal symbol where the system has
// none of its own: ";" for ",", else ",".
VEXBASE_API std::u16string ListSeparatorForDecimal(std::u16string_view decimalSymbol);

}  // namespace vex::platform
