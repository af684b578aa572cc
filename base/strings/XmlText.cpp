#include <base/strings/XmlText.h>

#include <base/framework/TextEncoding.h>

#include <iterator>
#include <string>
#include <string_view>

namespace vex {
namespace {

struct Entity {
    char16_t character;
    std::string_view name;
};

// Each replaced character once: replacing them in turn, "&" first, gives
// the same text as this one pass, as no entity holds another's character.
constexpr Entity kEntities[] = {
    {u'&', "&amp;"},       {u'<', "&lt;"},        {u'>', "&gt;"},
    {u'\'', "&#8217;"},    {u'"', "&#8221;"},     {u'\u00B3', "&#179;"},
    {u'\u00B2', "&#178;"}, {u'\u00B0', "&#176;"}, {u'\\', "&#92;"},
};

}  // namespace

CStringA XMLEscape(CStringA::TextArg textArg) {
    const std::string_view text = textArg.View();
    // The characters as the active code page writes them; one that it
    // cannot hold (written as "?") is never matched.
    std::string encoded[std::size(kEntities)];
    for (std::size_t k = 0; k < std::size(kEntities); ++k) {
        encoded[k] = Utf16ToAnsi(std::u16string_view(&kEntities[k].character, 1));
        if (encoded[k] == "?") encoded[k].clear();
    }
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        std::size_t k = 0;
        while (k < std::size(kEntities) &&
               (encoded[k].empty() || text.compare(i, encoded[k].size(), encoded[k]) != 0)) {
            ++k;
        }
        if (k < std::size(kEntities)) {
            out.append(kEntities[k].name);
            i += encoded[k].size();
        } else {
            out.push_back(text[i++]);
        }
    }
    return CStringA(std::move(out));
}

CString XMLEscape(CString::TextArg textArg) {
    const std::u16string_view text = textArg.View();
    std::u16string out;
    out.reserve(text.size());
    for (const char16_t c : text) {
        const Entity* entity = nullptr;
        for (const Entity& e : kEntities) {
            if (e.character == c) entity = &e;
        }
        if (entity) {
            out.append(entity->name.begin(), entity->name.end());
        } else {
            out.push_back(c);
        }
    }
    return CString(std::move(out));
}

CString XMLEscape(const wchar_t* text) {
    return XMLEscape(CString(text));
}

}  // namespace vex
