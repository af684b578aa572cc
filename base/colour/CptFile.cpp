// Reading and writing GMT colour palette tables.
#include <base/colour/CptFile.h>

#include <base/framework/AtomicFile.h>
#include <base/framework/FileStream.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <vector>

namespace vex {
namespace {

struct NamedColor {
    std::string_view name;
    unsigned char r, g, b;
};

// The names that GMT itself writes and the common X11 names; GMT knows
// several hundred more, which a file from it never uses for its own ramps.
constexpr std::array<NamedColor, 42> kNamedColors = {{
    {"black", 0, 0, 0},           {"white", 255, 255, 255},      {"red", 255, 0, 0},
    {"green", 0, 255, 0},         {"blue", 0, 0, 255},           {"yellow", 255, 255, 0},
    {"cyan", 0, 255, 255},        {"magenta", 255, 0, 255},      {"gray", 190, 190, 190},
    {"grey", 190, 190, 190},      {"orange", 255, 165, 0},       {"brown", 165, 42, 42},
    {"purple", 160, 32, 240},     {"pink", 255, 192, 203},       {"navy", 0, 0, 128},
    {"navyblue", 0, 0, 128},      {"darkred", 139, 0, 0},        {"darkgreen", 0, 100, 0},
    {"darkblue", 0, 0, 139},      {"darkgray", 169, 169, 169},   {"darkgrey", 169, 169, 169},
    {"lightred", 255, 127, 127},  {"lightgreen", 144, 238, 144}, {"lightblue", 173, 216, 230},
    {"lightgray", 211, 211, 211}, {"lightgrey", 211, 211, 211},  {"lightyellow", 255, 255, 224},
    {"lightcyan", 224, 255, 255}, {"darkcyan", 0, 139, 139},     {"darkmagenta", 139, 0, 139},
    {"darkorange", 255, 140, 0},  {"gold", 255, 215, 0},         {"violet", 238, 130, 238},
    {"turquoise", 64, 224, 208},  {"chocolate", 210, 105, 30},   {"tan", 210, 180, 140},
    {"salmon", 250, 128, 114},    {"maroon", 176, 48, 96},       {"beige", 245, 245, 220},
    {"khaki", 240, 230, 140},     {"olivedrab", 107, 142, 35},   {"seagreen", 46, 139, 87},
}};

std::string Lower(std::string_view text) {
    std::string out(text);
    for (char& c : out) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    return out;
}

// A whole token as a finite number, in the "C" locale.
bool ReadNumber(std::string_view text, double& value) {
    if (!text.empty() && text.front() == '+') text.remove_prefix(1);
    double v = 0;
    const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), v);
    if (ec != std::errc() || end != text.data() + text.size() || !std::isfinite(v)) return false;
    value = v;
    return true;
}

std::vector<std::string_view> Split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    std::size_t from = 0;
    while (true) {
        const std::size_t at = text.find(separator, from);
        parts.push_back(text.substr(from, at == std::string_view::npos ? at : at - from));
        if (at == std::string_view::npos) return parts;
        from = at + 1;
    }
}

unsigned Channel(double c) {
    return static_cast<unsigned>(std::lround(c));
}

bool RgbColor(double r, double g, double b, COLORREF& color) {
    for (double c : {r, g, b}) {
        if (!(c >= 0 && c <= 255)) return false;
    }
    color = RGB(Channel(r), Channel(g), Channel(b));
    return true;
}

bool HsvColor(double h, double s, double v, COLORREF& color) {
    if (!(h >= 0 && h <= 360 && s >= 0 && s <= 1 && v >= 0 && v <= 1)) return false;
    // Rounded channels, as GMT rounds; the table's own HSVtoRGB truncates.
    const double sector = std::floor(std::fmod(h, 360.0) / 60.0);
    const double f = h / 60.0 - sector;
    const double p = v * (1 - s);
    const double q = v * (1 - f * s);
    const double t = v * (1 - (1 - f) * s);
    const std::array<std::array<double, 3>, 6> rgb = {
        {{v, t, p}, {q, v, p}, {p, v, t}, {p, q, v}, {t, p, v}, {v, p, q}}};
    const auto& c = rgb[static_cast<std::size_t>(sector) % 6];
    return RgbColor(c[0] * 255, c[1] * 255, c[2] * 255, color);
}

bool ReadTriple(const std::vector<std::string_view>& parts, std::array<double, 3>& out) {
    if (parts.size() != 3) return false;
    for (std::size_t i = 0; i < 3; ++i) {
        if (!ReadNumber(parts[i], out[i])) return false;
    }
    return true;
}

// One colour of 1 or 3 tokens under the file's colour model.
bool ReadColorTokens(const std::vector<std::string_view>& tokens, bool hsvModel, COLORREF& color) {
    if (tokens.size() == 3) {
        std::array<double, 3> c{};
        if (!ReadTriple(tokens, c)) return false;
        return hsvModel ? HsvColor(c[0], c[1], c[2], color) : RgbColor(c[0], c[1], c[2], color);
    }
    if (tokens.size() != 1) return false;
    if (hsvModel) {
        std::array<double, 3> c{};
        if (ReadTriple(Split(tokens[0], '/'), c)) return HsvColor(c[0], c[1], c[2], color);
    }
    return ParseCptColor(tokens[0], color);
}

std::string_view Trim(std::string_view text) {
    const auto first = text.find_first_not_of(" \t\r\n");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

std::vector<std::string_view> Tokens(std::string_view text) {
    std::vector<std::string_view> out;
    std::size_t at = 0;
    while (true) {
        at = text.find_first_not_of(" \t,", at);
        if (at == std::string_view::npos) return out;
        const std::size_t end = text.find_first_of(" \t,", at);
        out.push_back(text.substr(at, end == std::string_view::npos ? end : end - at));
        if (end == std::string_view::npos) return out;
        at = end;
    }
}

bool IsPlainNumber(std::string_view token) {
    double unused = 0;
    return ReadNumber(token, unused);
}

struct Slice {
    double z0, z1;
    COLORREF c0, c1;
    std::string label;
};

std::string Utf8(const CString& text) {
    return text.ToUtf8();
}

// The shortest text that reads back to the same double: "0.1" stays
// "0.1", and a ramp value a few units in the last place off it keeps them,
// so a table read back colours every value as before.
std::string ValueText(double value) {
    char text[32];
    const auto [end, ec] = std::to_chars(text, text + sizeof text, value);
    return ec == std::errc() ? std::string(text, end) : std::string("0");
}

std::string ColorText(COLORREF c) {
    return std::to_string(GetRValue(c)) + "/" + std::to_string(GetGValue(c)) + "/" +
           std::to_string(GetBValue(c));
}

}  // namespace

bool ParseCptColor(std::string_view text, COLORREF& color) {
    text = Trim(text);
    if (text.empty()) return false;
    if (text.front() == '#') {
        if (text.size() != 7) return false;
        unsigned value = 0;
        const auto [end, ec] = std::from_chars(text.data() + 1, text.data() + 7, value, 16);
        if (ec != std::errc() || end != text.data() + 7) return false;
        color = RGB((value >> 16) & 0xFF, (value >> 8) & 0xFF, value & 0xFF);
        return true;
    }
    std::array<double, 3> c{};
    if (text.find('/') != std::string_view::npos) {
        return ReadTriple(Split(text, '/'), c) && RgbColor(c[0], c[1], c[2], color);
    }
    // h-s-v: a dash after the first character (a leading one would be a sign).
    if (text.find('-', 1) != std::string_view::npos) {
        return ReadTriple(Split(text, '-'), c) && HsvColor(c[0], c[1], c[2], color);
    }
    double grey = 0;
    if (ReadNumber(text, grey)) return RgbColor(grey, grey, grey, color);
    const std::string name = Lower(text);
    for (const NamedColor& named : kNamedColors) {
        if (named.name == name) {
            color = RGB(named.r, named.g, named.b);
            return true;
        }
    }
    return false;
}

bool ParseCpt(std::string_view text, CptPalette& palette, CString& error,
              const CptReadOptions& options) {
    const auto fail = [&error](int line, const char* what) {
        error.Format(u"line %d: %s", line, what);
        return false;
    };
    if (options.continuousSteps < 1 || options.continuousSteps > 256) {
        return fail(0, "continuous steps must lie between 1 and 256");
    }
    bool hsvModel = false;
    std::optional<COLORREF> background;
    std::optional<COLORREF> foreground;
    std::optional<COLORREF> nanColor;
    std::vector<Slice> slices;
    int lineNumber = 0;
    int lastContentLine = 1;
    for (std::string_view line : Split(text, '\n')) {
        ++lineNumber;
        line = Trim(line);
        if (line.empty()) continue;
        if (line.front() == '#') {
            const std::string upper = Lower(line);
            const auto model = upper.find("color_model");
            if (model != std::string::npos) {
                const auto value = upper.substr(upper.find('=', model) == std::string::npos
                                                    ? upper.size()
                                                    : upper.find('=', model) + 1);
                if (value.find("cmyk") != std::string::npos) {
                    return fail(lineNumber, "CMYK colours are not supported");
                }
                hsvModel = value.find("hsv") != std::string::npos;
            }
            continue;
        }
        std::string label;
        const auto semicolon = line.find(';');
        if (semicolon != std::string_view::npos) {
            label = std::string(Trim(line.substr(semicolon + 1)));
            line = Trim(line.substr(0, semicolon));
        }
        std::vector<std::string_view> tokens = Tokens(line);
        if (tokens.empty()) return fail(lineNumber, "a label without a slice");
        lastContentLine = lineNumber;
        const char kind = tokens[0].size() == 1 ? tokens[0][0] : '\0';
        if (kind == 'B' || kind == 'F' || kind == 'N') {
            COLORREF color = 0;
            const std::vector<std::string_view> rest(tokens.begin() + 1, tokens.end());
            if (!ReadColorTokens(rest, hsvModel, color)) {
                return fail(lineNumber, "not a colour after B, F or N");
            }
            (kind == 'B' ? background : kind == 'F' ? foreground : nanColor) = color;
            continue;
        }
        // The annotation flag at the end (L, U or B) is of no use to a table.
        if (tokens.size() > 1) {
            const std::string_view last = tokens.back();
            if (last == "L" || last == "U" || last == "B") tokens.pop_back();
        }
        Slice slice{0, 0, 0, 0, label};
        if (tokens.size() < 4 || !ReadNumber(tokens[0], slice.z0)) {
            return fail(lineNumber, "not a slice \"z0 colour z1 colour\"");
        }
        const std::size_t rest = tokens.size() - 1;
        // After z0: colour, z1, colour of 1 or 3 tokens each.
        std::size_t firstSize = 0;
        if (rest == 3) {
            firstSize = 1;
        } else if (rest == 7) {
            firstSize = 3;
        } else if (rest == 5) {
            firstSize = IsPlainNumber(tokens[1]) && IsPlainNumber(tokens[2]) &&
                                IsPlainNumber(tokens[3]) && IsPlainNumber(tokens[4])
                            ? 3
                            : 1;
        } else {
            return fail(lineNumber, "wrong number of fields for a slice");
        }
        const std::vector<std::string_view> first(
            tokens.begin() + 1, tokens.begin() + 1 + static_cast<long>(firstSize));
        const std::vector<std::string_view> second(
            tokens.begin() + 2 + static_cast<long>(firstSize), tokens.end());
        if (!ReadColorTokens(first, hsvModel, slice.c0) ||
            !ReadNumber(tokens[1 + firstSize], slice.z1) ||
            !ReadColorTokens(second, hsvModel, slice.c1)) {
            return fail(lineNumber, "unreadable value or colour in a slice");
        }
        if (!(slice.z0 < slice.z1)) return fail(lineNumber, "a slice must rise (z0 < z1)");
        if (!slices.empty() && slice.z0 < slices.back().z1) {
            return fail(lineNumber, "slices overlap or are out of order");
        }
        slices.push_back(std::move(slice));
    }
    if (slices.empty()) return fail(lastContentLine, "no colour slices");

    CptPalette result;
    ColorTable& table = result.table;
    table.SetLowColor(background.value_or(0));
    for (std::size_t s = 0; s < slices.size(); ++s) {
        const Slice& slice = slices[s];
        // A gap before this slice shows the NaN colour, as in GMT.
        if (s > 0 && slices[s - 1].z1 < slice.z0) {
            table.AddEntry(slices[s - 1].z1, nanColor.value_or(RGB(128, 128, 128)), false, u"");
        }
        const int steps = slice.c0 == slice.c1 ? 1 : options.continuousSteps;
        for (int k = 0; k < steps; ++k) {
            const double z = slice.z0 + (slice.z1 - slice.z0) * k / steps;
            // Each band takes the colour at its middle, so the bands average
            // the gradient; a single band keeps colour0.
            const double at = steps == 1 ? 0.0 : (k + 0.5) / steps;
            const auto mix = [at](unsigned a, unsigned b) {
                return Channel(a + at * (double(b) - a));
            };
            const COLORREF c = RGB(mix(GetRValue(slice.c0), GetRValue(slice.c1)),
                                   mix(GetGValue(slice.c0), GetGValue(slice.c1)),
                                   mix(GetBValue(slice.c0), GetBValue(slice.c1)));
            table.AddEntry(z, c, false, k == 0 ? CString::FromUtf8(slice.label) : CString());
        }
    }
    // An F of the last band's own colour changes no lookup: no entry for it.
    if (foreground && *foreground != table.EntryColor(table.NumEntries() - 1)) {
        table.AddEntry(slices.back().z1, *foreground, false, u"");
    }
    result.foreground = foreground;
    result.nanColor = nanColor;
    palette = std::move(result);
    error.Empty();
    return true;
}

bool ReadCptFile(const CString& fileName, CptPalette& palette, CString& error,
                 const CptReadOptions& options) {
    FileStream file;
    std::string text;
    if (file.Open(fileName, CFile::modeRead | CFile::shareDenyWrite)) {
        const auto length = file.GetLength();
        // A palette is a few kilobytes; anything past 64 MB is not one.
        if (length <= 64u << 20) {
            text.resize(static_cast<std::size_t>(length));
            if (file.Read(text.data(), text.size()) != text.size()) text.clear();
        }
    }
    if (text.empty()) {
        error = CString(u"cannot read ") + fileName;
        return false;
    }
    return ParseCpt(text, palette, error, options);
}

std::string FormatCpt(const CptPalette& palette) {
    const ColorTable& table = palette.table;
    std::string out = "# Colour palette table written by VexBase\n# COLOR_MODEL = RGB\n";
    const auto slice = [&out](double z0, double z1, COLORREF c, const CString& name) {
        out += ValueText(z0) + "\t" + ColorText(c) + "\t" + ValueText(z1) + "\t" + ColorText(c);
        std::string label = Utf8(name);
        std::replace(label.begin(), label.end(), '\n', ' ');
        std::replace(label.begin(), label.end(), '\r', ' ');
        if (!label.empty()) out += "\t;" + label;
        out += "\n";
    };
    const int n = table.NumEntries();
    COLORREF top = table.LowColor();
    if (n == 0) {
        slice(0.0, 1.0, top, CString());
    } else if (n == 1) {
        top = table.EntryColor(0);
        slice(table.EntryValue(0), table.EntryValue(0) + 1.0, top, table.EntryName(0));
    } else {
        // Locked entries may repeat a value; GMT wants rising slices, and
        // the later of equal entries is the one a lookup finds.
        double below = table.EntryValue(0);
        for (int i = 0; i + 1 < n; ++i) {
            if (table.EntryValue(i) < table.EntryValue(i + 1)) {
                below = table.EntryValue(i);
                slice(table.EntryValue(i), table.EntryValue(i + 1), table.EntryColor(i),
                      table.EntryName(i));
            }
        }
        // The last entry gets a slice of its own, as high as the one below
        // it: as F alone it would be lost on reading whenever it has the
        // colour of the band below (F then adds nothing), and so would its
        // name. F repeats its colour for everything above.
        const double last = table.EntryValue(n - 1);
        double end = last + (last - below);
        if (!(end > last) || !std::isfinite(end)) end = std::nextafter(last, INFINITY);
        top = table.EntryColor(n - 1);
        slice(last, end, top, table.EntryName(n - 1));
    }
    out += "B\t" + ColorText(table.LowColor()) + "\n";
    out += "F\t" + ColorText(top) + "\n";
    if (palette.nanColor) out += "N\t" + ColorText(*palette.nanColor) + "\n";
    return out;
}

bool WriteCptFile(const CString& fileName, const CptPalette& palette) {
    const std::string text = FormatCpt(palette);
    AtomicFile file;
    return file.Open(fileName) && file.Write(text.data(), text.size()) && file.Commit();
}

}  // namespace vex
