#include <base/platform/RegionalSettings.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <string>

namespace vex::platform {
namespace {

#ifdef _WIN32
const char* const kPointLocale = "en-US";
const char* const kCommaLocales[] = {"de-DE"};
#else
const char* const kPointLocale = "C";
const char* const kCommaLocales[] = {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "nl_NL.UTF-8"};
#endif
const char* const kNoLocale = "xx_YY.no-such-locale";

// The first comma-decimal locale this machine has, or null.
const char* FindCommaLocale() {
    for (const char* name : kCommaLocales) {
        if (LocaleRegionalSettings(name).decimalSymbol == u",") return name;
    }
    return nullptr;
}

TEST(RegionalSettings, NamedLocalesGiveTheirSymbolsAndUnknownNamesNone) {
    EXPECT_EQ(ListSeparatorForDecimal(u","), u";");
    EXPECT_EQ(ListSeparatorForDecimal(u"\u066B"), u",");  // Arabic decimal separator
    const RegionalSettings point = LocaleRegionalSettings(kPointLocale);
    EXPECT_EQ(point.decimalSymbol + point.listSeparator, u".,");
    for (const char* bad : {kNoLocale, "", static_cast<const char*>(nullptr)}) {
        const RegionalSettings none = LocaleRegionalSettings(bad);
        EXPECT_EQ(none.decimalSymbol + none.listSeparator, u"") << (bad ? bad : "null");
    }
}

TEST(RegionalSettings, CommaLocaleGivesCommaAndSemicolon) {
    const char* comma = FindCommaLocale();
    if (!comma) GTEST_SKIP() << "no comma-decimal locale is installed on this machine";
    const RegionalSettings settings = LocaleRegionalSettings(comma);
    EXPECT_EQ(settings.decimalSymbol + settings.listSeparator, u",;");
}

#ifndef _WIN32

// Sets LC_ALL, LC_NUMERIC and LANG (null: unset) and restores them after.
class LocaleEnvironment : public testing::Test {
  protected:
    void SetUp() override {
        for (int i = 0; i < 3; ++i) {
            if (const char* value = std::getenv(kNames[i])) saved_[i] = value;
        }
    }
    void TearDown() override {
        for (int i = 0; i < 3; ++i)
            Set(kNames[i], saved_[i] ? saved_[i]->c_str() : nullptr);
    }
    static void Apply(const char* const (&values)[3]) {
        for (int i = 0; i < 3; ++i)
            Set(kNames[i], values[i]);
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

TEST_F(LocaleEnvironment, NamesTheLocaleInPosixOrder) {
    // An unknown name gives no decimal symbol, so it shows which variable won.
    struct Case {
        const char* values[3];  // LC_ALL, LC_NUMERIC, LANG
        const char16_t* expected;
    };
    const Case cases[] = {
        {{nullptr, nullptr, nullptr}, u".,"},  // nothing set: the "C" locale
        {{kNoLocale, "C.UTF-8", "C.UTF-8"}, u""},
        {{"C.UTF-8", kNoLocale, kNoLocale}, u".,"},
        {{nullptr, kNoLocale, "C.UTF-8"}, u""},
        {{"", "", kNoLocale}, u""},  // empty counts as unset
        {{"", nullptr, "C.UTF-8"}, u".,"},
    };
    for (const Case& c : cases) {
        Apply(c.values);
        const RegionalSettings settings = UserRegionalSettings();
        EXPECT_EQ(settings.decimalSymbol + settings.listSeparator, c.expected)
            << (c.values[0] ? c.values[0] : "-") << " " << (c.values[1] ? c.values[1] : "-");
    }
}

TEST_F(LocaleEnvironment, CommaLocaleGivesCommaAndSemicolon) {
    const char* comma = FindCommaLocale();
    if (!comma) GTEST_SKIP() << "no comma-decimal locale is installed on this machine";
    Apply({nullptr, comma, nullptr});
    const RegionalSettings settings = UserRegionalSettings();
    EXPECT_EQ(settings.decimalSymbol + settings.listSeparator, u",;");
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
