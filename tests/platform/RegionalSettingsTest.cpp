#include <base/platform/RegionalSettings.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <string>

namespace vex::platform {
namespace {

#ifdef _WIN32
constexpr const char* kPointLocale = "en-US";
constexpr const char* kCommaLocales[] = {"de-DE"};
#else
constexpr const char* kPointLocale = "C";
constexpr const char* kCommaLocales[] = {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8",
                                         "nl_NL.UTF-8", "de_DE",      "fr_FR"};
#endif
constexpr const char* kNoLocale = "xx_YY.no-such-locale";

// The first comma-decimal locale this machine has, if any.
const char* FindCommaLocale() {
    for (const char* name : kCommaLocales) {
        if (LocaleRegionalSettings(name).decimalSymbol == u",") return name;
    }
    return nullptr;
}

TEST(RegionalSettings, CommaDecimalTakesTheSemicolonAsListSeparator) {
    EXPECT_EQ(ListSeparatorForDecimal(u","), u";");
    EXPECT_EQ(ListSeparatorForDecimal(u"."), u",");
    EXPECT_EQ(ListSeparatorForDecimal(u"\u066B"), u",");  // Arabic decimal separator
    EXPECT_EQ(ListSeparatorForDecimal(u""), u",");
}

TEST(RegionalSettings, NamedLocalesGiveTheirSymbolsAndUnknownNamesNone) {
    const RegionalSettings point = LocaleRegionalSettings(kPointLocale);
    EXPECT_EQ(point.decimalSymbol, u".");
    EXPECT_EQ(point.listSeparator, u",");
    for (const char* bad : {kNoLocale, "", static_cast<const char*>(nullptr)}) {
        const RegionalSettings none = LocaleRegionalSettings(bad);
        EXPECT_TRUE(none.decimalSymbol.empty()) << (bad ? bad : "null");
        EXPECT_TRUE(none.listSeparator.empty()) << (bad ? bad : "null");
    }
}

TEST(RegionalSettings, CommaLocaleGivesCommaAndSemicolon) {
    const char* name = FindCommaLocale();
    if (!name) GTEST_SKIP() << "no comma-decimal locale is installed on this machine";
    const RegionalSettings comma = LocaleRegionalSettings(name);
    EXPECT_EQ(comma.decimalSymbol, u",");
    EXPECT_EQ(comma.listSeparator, u";");
}

#ifndef _WIN32

// Sets the locale variables for one test and restores them afterwards.
class LocaleEnvironment {
  public:
    LocaleEnvironment() {
        for (int i = 0; i < 3; ++i) {
            if (const char* value = std::getenv(kNames[i])) saved_[i] = value;
        }
    }
    ~LocaleEnvironment() {
        for (int i = 0; i < 3; ++i)
            Set(kNames[i], saved_[i] ? saved_[i]->c_str() : nullptr);
    }
    LocaleEnvironment(const LocaleEnvironment&) = delete;
    LocaleEnvironment& operator=(const LocaleEnvironment&) = delete;

    void Apply(const char* all, const char* numeric, const char* lang) {
        Set("LC_ALL", all);
        Set("LC_NUMERIC", numeric);
        Set("LANG", lang);
    }

  private:
    static void Set(const char* name, const char* value) {
        if (value) {
            setenv(name, value, 1);
        } else {
            unsetenv(name);
        }
    }

    static constexpr const char* kNames[3] = {"LC_ALL", "LC_NUMERIC", "LANG"};
    std::optional<std::string> saved_[3];
};

TEST(RegionalSettings, EnvironmentNamesTheLocaleInPosixOrder) {
    // An unknown name gives no decimal symbol, so it shows which variable won.
    struct Case {
        const char* all;
        const char* numeric;
        const char* lang;
        const char16_t* decimal;
    };
    const Case cases[] = {
        {nullptr, nullptr, nullptr, u"."},        // nothing set: the "C" locale
        {kNoLocale, "C.UTF-8", "C.UTF-8", u""},   // LC_ALL before the others
        {"C.UTF-8", kNoLocale, kNoLocale, u"."},  //
        {nullptr, kNoLocale, "C.UTF-8", u""},     // LC_NUMERIC before LANG
        {nullptr, "C.UTF-8", kNoLocale, u"."},    //
        {"", "", kNoLocale, u""},                 // empty counts as unset
        {"", nullptr, "C.UTF-8", u"."},           //
    };
    LocaleEnvironment environment;
    for (const Case& c : cases) {
        environment.Apply(c.all, c.numeric, c.lang);
        const RegionalSettings settings = UserRegionalSettings();
        EXPECT_EQ(settings.decimalSymbol, c.decimal)
            << (c.all ? c.all : "-") << " " << (c.numeric ? c.numeric : "-") << " "
            << (c.lang ? c.lang : "-");
        EXPECT_EQ(settings.listSeparator, *c.decimal ? u"," : u"");
    }
}

TEST(RegionalSettings, EnvironmentWithACommaLocaleGivesCommaAndSemicolon) {
    const char* name = FindCommaLocale();
    if (!name) GTEST_SKIP() << "no comma-decimal locale is installed on this machine";
    LocaleEnvironment environment;
    environment.Apply(nullptr, name, nullptr);
    const RegionalSettings settings = UserRegionalSettings();
    EXPECT_EQ(settings.decimalSymbol, u",");
    EXPECT_EQ(settings.listSeparator, u";");
}

#else

TEST(RegionalSettings, UserLocaleGivesBothTexts) {
    const RegionalSettings settings = UserRegionalSettings();
    EXPECT_FALSE(settings.decimalSymbol.empty());
    EXPECT_FALSE(settings.listSeparator.empty());
}

#endif

}  // namespace
}  // namespace vex::platform
