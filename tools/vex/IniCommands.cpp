// vex ini: show, get, set and delete items of settings files; diff, apply,
// seal and verify whole files.
#include "Command.h"
#include "Console.h"
#include "ExitCode.h"
#include "IniFiles.h"
#include "Json.h"

#include <base/config/Config.h>

#include <memory>
#include <string>

namespace vextool {
namespace {

struct IniOptions {
    std::string file;
    std::string other;
    std::string section;
    std::string key;
    std::string value;
    std::string output;
    bool json = false;
    bool createSection = false;
};

using vex::CString;

CString Wide(const std::string& utf8) {
    return CString::FromUtf8(utf8);
}

// Calls visit(key, value) for every item of section in file order.
template <class Visit>
void ForEachItem(const vex::FileObject& file, const CString& section, Visit visit) {
    vex::FobjSection handle;
    CString key;
    CString value;
    for (bool more = file.GetFirstMapEntry(handle, section, key, value); more;
         more = file.GetNextMapEntry(handle, key, value)) {
        visit(key, value);
    }
}

// Every section name in file order; the checksum section, which section
// iteration passes over, last.
std::vector<CString> SectionNames(const vex::FileObject& file) {
    std::vector<CString> names;
    vex::FobjSection handle;
    CString name;
    for (bool more = file.GetFirstSectionEntry(handle, name); more;
         more = file.GetNextSectionEntry(handle, name)) {
        names.push_back(name);
    }
    if (file.HasSection(vex::FileObject::CHECKSUM_SECTION))
        names.push_back(vex::FileObject::CHECKSUM_SECTION);
    return names;
}

int Show(const IniOptions& o) {
    vex::FileObject file;
    if (auto failed = LoadSettings(o.file, file)) return *failed;
    const std::vector<CString> sections = SectionNames(file);
    if (!o.json) {
        for (const CString& line : file.GetExtraInfo())
            PrintLine(line);
        for (const CString& section : sections) {
            PrintLine("[" + section.ToUtf8() + "]");
            ForEachItem(file, section, [](const CString& k, const CString& v) {
                PrintLine(k.ToUtf8() + " = " + v.ToUtf8());
            });
            PrintLine();
        }
        return kSuccess;
    }
    std::string out = "{\"file\": " + JsonString(o.file) + ", \"sections\": [";
    for (std::size_t s = 0; s < sections.size(); ++s) {
        out += (s ? ", " : "") + std::string("{\"name\": ") + JsonString(sections[s].ToUtf8()) +
               ", \"items\": [";
        bool first = true;
        ForEachItem(file, sections[s], [&](const CString& k, const CString& v) {
            out += (first ? "" : ", ") + std::string("{\"key\": ") + JsonString(k.ToUtf8()) +
                   ", \"value\": " + JsonString(v.ToUtf8()) + "}";
            first = false;
        });
        out += "]}";
    }
    PrintLine(out + "]}");
    return kSuccess;
}

int MissingSection(const IniOptions& o) {
    return Fail(kInputOutput, o.file, "no section [" + o.section + "]");
}

int MissingKey(const IniOptions& o) {
    return Fail(kInputOutput, o.file, "no key \"" + o.key + "\" in section [" + o.section + "]");
}

int Get(const IniOptions& o) {
    vex::FileObject file;
    if (auto failed = LoadSettings(o.file, file)) return *failed;
    if (!file.HasSection(Wide(o.section))) return MissingSection(o);
    CString value;
    if (!file.GetItem(Wide(o.section), Wide(o.key), value)) return MissingKey(o);
    PrintLine(value);
    return kSuccess;
}

int Set(const IniOptions& o) {
    vex::FileObject file;
    if (auto failed = LoadSettings(o.file, file)) return *failed;
    if (!file.HasSection(Wide(o.section)) && !o.createSection) {
        return Fail(kInputOutput, o.file,
                    "no section [" + o.section + "] (use --create-section to add it)");
    }
    if (o.key.empty() || o.key.find('=') != std::string::npos || o.key.find_first_of("[;") == 0) {
        return Fail(kUsage, "a key must not be empty, hold \"=\" or begin with \"[\" or \";\"");
    }
    file.SetItem(Wide(o.section), Wide(o.key), Wide(o.value), true);
    return SaveSettings(file, o.file);
}

int Delete(const IniOptions& o) {
    vex::FileObject file;
    if (auto failed = LoadSettings(o.file, file)) return *failed;
    if (!file.HasSection(Wide(o.section))) return MissingSection(o);
    if (o.key.empty()) {
        file.DeleteSection(Wide(o.section));
    } else if (!file.DeleteItem(Wide(o.section), Wide(o.key), false)) {
        return MissingKey(o);
    }
    return SaveSettings(file, o.file);
}

int Diff(const IniOptions& o) {
    vex::FileObject base;
    vex::FileObject other;
    if (auto failed = LoadSettings(o.file, base)) return *failed;
    if (auto failed = LoadSettings(o.other, other)) return *failed;
    vex::FileObject difference;
    base.GetDifference(other, difference);
    const bool differs = difference.GetNumSections() > 0;
    if (!o.output.empty()) {
        if (const int saved = SaveSettings(difference, o.output); saved != kSuccess) return saved;
    } else if (differs) {
        Print(RenderSettings(difference));
    }
    return differs ? kDiffers : kSuccess;
}

int Apply(const IniOptions& o) {
    vex::FileObject base;
    vex::FileObject difference;
    if (auto failed = LoadSettings(o.file, base)) return *failed;
    if (auto failed = LoadSettings(o.other, difference)) return *failed;
    if (!base.ApplyDifference(difference))
        return Fail(kInputOutput, o.other, "is not a difference description");
    return SaveSettings(base, o.output.empty() ? o.file : o.output);
}

int Seal(const IniOptions& o) {
    vex::FileObject file;
    if (auto failed = LoadSettings(o.file, file)) return *failed;
    vex::WriteChecksumSection(file);
    return SaveSettings(file, o.file);
}

int Verify(const IniOptions& o) {
    vex::FileObject file;
    if (auto failed = LoadSettings(o.file, file)) return *failed;
    if (!file.HasSection(vex::FileObject::CHECKSUM_SECTION)) {
        return Fail(kDiffers, o.file, "has no checksum section (not sealed)");
    }
    if (!vex::VerifyChecksumSection(file)) {
        return Fail(kDiffers, o.file,
                    "FAILED verification: the content does not match its checksum section");
    }
    PrintLine(o.file + ": OK");
    return kSuccess;
}

// Adds a sub-command of "ini" whose action is fn over the shared options.
CLI::App* Sub(CLI::App& ini, const char* name, const char* help, const char* example,
              const std::shared_ptr<IniOptions>& o, int (*fn)(const IniOptions&), Action& run) {
    CLI::App* cmd = ini.add_subcommand(name, help);
    cmd->footer(std::string("Example: ") + example);
    cmd->callback([o, fn, &run] { run = [o, fn] { return fn(*o); }; });
    return cmd;
}

}  // namespace

void AddIniCommands(CLI::App& app, Action& run) {
    auto o = std::make_shared<IniOptions>();
    CLI::App* ini = app.add_subcommand(
        "ini", "Settings files: show, get, set, delete, diff, apply, seal, verify");
    ini->require_subcommand(1);

    CLI::App* show =
        Sub(*ini, "show", "Print the sections and items of a settings file in file order",
            "vex ini show vessel.ini --json", o, Show, run);
    show->add_option("file", o->file, "settings file")->required();
    show->add_flag("--json", o->json, "print JSON for scripts");

    CLI::App* get = Sub(*ini, "get", "Print one item's value",
                        "vex ini get vessel.ini Offsets GPS1.X", o, Get, run);
    get->add_option("file", o->file, "settings file")->required();
    get->add_option("section", o->section, "section name")->required();
    get->add_option("key", o->key, "key")->required();

    CLI::App* set = Sub(*ini, "set", "Set one item's value and save the file atomically",
                        "vex ini set vessel.ini Offsets GPS1.X 1.250", o, Set, run);
    set->add_option("file", o->file, "settings file")->required();
    set->add_option("section", o->section, "section name")->required();
    set->add_option("key", o->key, "key")->required();
    set->add_option("value", o->value, "new value")->required();
    set->add_flag("--create-section", o->createSection, "create the section when it is missing");

    CLI::App* del = Sub(*ini, "delete", "Delete an item, or a whole section when no key is given",
                        "vex ini delete vessel.ini Device.GPS2 Geoid", o, Delete, run);
    del->add_option("file", o->file, "settings file")->required();
    del->add_option("section", o->section, "section name")->required();
    del->add_option("key", o->key, "key (omit to delete the section)");

    CLI::App* diff = Sub(*ini, "diff", "Describe how B differs from A (exit 1 when they differ)",
                         "vex ini diff vessel.ini vessel-v2.ini -o changes.ini", o, Diff, run);
    diff->add_option("a", o->file, "the base file")->required();
    diff->add_option("b", o->other, "the changed file")->required();
    diff->add_option("-o,--output", o->output,
                     "write the description to this file instead of standard output");

    CLI::App* apply = Sub(*ini, "apply", "Apply a difference description to a file",
                          "vex ini apply vessel.ini changes.ini -o vessel-new.ini", o, Apply, run);
    apply->add_option("base", o->file, "the file to change")->required();
    apply->add_option("diff", o->other, "the difference description (from vex ini diff)")
        ->required();
    apply->add_option("-o,--output", o->output, "write the result here instead of changing BASE");

    CLI::App* seal = Sub(*ini, "seal", "Write the checksum section of a file",
                         "vex ini seal vessel.ini", o, Seal, run);
    seal->add_option("file", o->file, "settings file")->required();

    CLI::App* verify =
        Sub(*ini, "verify", "Check a file against its checksum section (exit 1 when it fails)",
            "vex ini verify vessel.ini", o, Verify, run);
    verify->add_option("file", o->file, "settings file")->required();
}

}  // namespace vextool
