#include <base/framework/TextEncoding.h>
#include <base/platform/RegionalSettings.h>

#include <windows.h>

#include <string>

namespace vex::platform {
namespace {

// One locale value: a first call for the length, a second into a buffer of
// that length. Empty when either call fails.
std::u16string QueryLocaleInfo(const wchar_t* locale, LCTYPE type) {
    const int length = GetLocaleInfoEx(locale, type, nullptr, 0);
    if (length <= 0) return {};
    std::wstring buffer(static_cast<std::size_t>(length), L'\0');
    const int written = GetLocaleInfoEx(locale, type, buffer.data(), length);
    if (written <= 0) return {};
    buffer.resize(static_cast<std::size_t>(written - 1));  // the count includes the NUL
    return WideToUtf16(buffer);
}

RegionalSettings Query(const wchar_t* locale) {
    RegionalSettings settings;
    settings.decimalSymbol = QueryLocaleInfo(locale, LOCALE_SDECIMAL);
    settings.listSeparator = QueryLocaleInfo(locale, LOCALE_SLIST);
    return settings;
}

}  // namespace

RegionalSettings UserRegionalSettings() {
    return Query(LOCALE_NAME_USER_DEFAULT);
}

RegionalSettings LocaleRegionalSettings(const char* localeName) {
    if (!localeName || !*localeName) return {};
    // Locale names are ASCII ("de-DE"); anything else names no locale.
    std::wstring name;
    for (const char* p = localeName; *p; ++p) {
        if (static_cast<unsigned char>(*p) > 0x7F) return {};
        name.push_back(static_cast<wchar_t>(*p));
    }
    return Query(name.c_str());
}

}  // namespace vex::platform
