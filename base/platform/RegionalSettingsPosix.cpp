#include <base/framework/TextEncoding.h>
#include <base/platform/RegionalSettings.h>

#include <langinfo.h>
#include <locale.h>
#include <cstdlib>

namespace vex::platform {
namespace {

// The environment's numeric locale by the POSIX order of precedence; an
// empty variable counts as unset.
const char* NumericLocaleName() {
    for (const char* variable : {"LC_ALL", "LC_NUMERIC", "LANG"}) {
        const char* value = std::getenv(variable);
        if (value && *value) return value;
    }
    return "C";
}

// The radix text in the locale's encoding; nearly always one ASCII
// character, else (ps_AF's U+066B) UTF-8 in the UTF-8 locales in use.
std::u16string DecodeRadix(const char* radix) {
    if (!radix || !*radix) return {};
    std::u16string text = Utf8ToUtf16(radix);
    if (text.find(kReplacementChar) != std::u16string::npos) return {};
    return text;
}

}  // namespace

RegionalSettings LocaleRegionalSettings(const char* localeName) {
    RegionalSettings settings;
    // An empty name would make newlocale read the environment itself.
    if (!localeName || !*localeName) return settings;
    // A locale object of its own, so the process locale stays as it is.
    const locale_t locale = newlocale(LC_NUMERIC_MASK, localeName, static_cast<locale_t>(0));
    if (locale == static_cast<locale_t>(0)) return settings;
    settings.decimalSymbol = DecodeRadix(nl_langinfo_l(RADIXCHAR, locale));
    freelocale(locale);
    if (!settings.decimalSymbol.empty()) {
        settings.listSeparator = ListSeparatorForDecimal(settings.decimalSymbol);
    }
    return settings;
}

RegionalSettings UserRegionalSettings() {
    return LocaleRegionalSettings(NumericLocaleName());
}

}  // namespace vex::platform
