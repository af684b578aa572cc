// vex units: the catalogue of selectable units, conversions between them as
// the suite's displays make them, and the units a settings file selects.
#include "Command.h"
#include "Console.h"
#include "ExitCode.h"
#include "IniFiles.h"

#include <base/strings/FormatString.h>
#include <base/units/Units.h>

#include <memory>
#include <string>

namespace vextool {
namespace {

using vex::CString;
using vex::UnitDefinition;

struct UnitsOptions {
    std::string value;
    std::string from;
    std::string to;
    int decimals = -1;
    int feetMode = 0;
    std::string file;
};

// The kind through which a group's units are converted: the system length
// kind is always shown as stored, so its units go through the distance kind.
int ConversionKind(int group) {
    return group == UnitDefinition::groupSystem ? 4 : UnitDefinition::GetGroupKinds(group)[0];
}

// The unit of group named by its mnemonic (exactly) or its key (without
// case).
bool FindInGroup(int group, const CString& name, vex::UnitItem& item) {
    for (const vex::UnitItem& candidate : UnitDefinition::GetGroupItems(group)) {
        if (candidate.mnemonic == name || candidate.key.CompareNoCase(name) == 0) {
            item = candidate;
            return true;
        }
    }
    return false;
}

bool KnownUnit(const CString& name) {
    vex::UnitItem item;
    for (int group = 0; group < UnitDefinition::numGroups; ++group) {
        if (FindInGroup(group, name, item)) return true;
    }
    return false;
}

void Select(int kind, const vex::UnitItem& item) {
    vex::GetVexUnitCnv().SetUnit(kind, item.factor, item.offset, item.mnemonic, item.key,
                                 item.displayName);
}

int RunList() {
    for (int group = 0; group < UnitDefinition::numGroups; ++group) {
        PrintLine(UnitDefinition::GetGroupName(group));
        for (const vex::UnitItem& item : UnitDefinition::GetGroupItems(group)) {
            CString line;
            line.Format(u"  %-7s %-6s %-26s factor %s", item.key.GetString(),
                        item.mnemonic.GetString(), item.displayName.GetString(),
                        vex::FormatDouble(item.factor, vex::GetDoublePrecision(item.factor), 0)
                            .GetString());
            if (item.offset != 0) {
                line += u" offset " +
                        vex::FormatDouble(item.offset, vex::GetDoublePrecision(item.offset), 0);
            }
            PrintLine(line);
        }
    }
    return kSuccess;
}

int RunConvert(const UnitsOptions& o) {
    const CString from = CString::FromUtf8(o.from);
    const CString to = CString::FromUtf8(o.to);
    for (const CString& name : {from, to}) {
        if (!KnownUnit(name)) return Fail(kUsage, "unknown unit \"" + name.ToUtf8() + "\"");
    }
    for (int group = 0; group < UnitDefinition::numGroups; ++group) {
        vex::UnitItem source;
        vex::UnitItem target;
        if (!FindInGroup(group, from, source) || !FindInGroup(group, to, target)) continue;
        const int kind = ConversionKind(group);
        const int format = vex::CVexUnitCnv::ConvertUNITtoFMT(kind);
        Select(kind, source);
        double stored = 0;
        if (!vex::UnitStringToInternalValue(CString::FromUtf8(o.value), format, stored)) {
            return Fail(kUsage, "\"" + o.value + "\" is not a number");
        }
        Select(kind, target);
        vex::SetFeetDisplayMode(o.feetMode);
        PrintLine(vex::InternalValueToUnitString(stored, format, o.decimals) + u" " +
                  target.mnemonic);
        return kSuccess;
    }
    return Fail(kUsage, "\"" + o.from + "\" and \"" + o.to + "\" measure different quantities");
}

int RunShow(const UnitsOptions& o) {
    vex::FileObject file;
    if (auto failed = LoadSettings(o.file, file)) return *failed;
    vex::CVexUnitCnv units;
    const bool known = vex::LoadUnits(file, units);
    if (!file.HasSection(vex::UNITS_SECTION)) {
        PrintLine("no [Units] section: the default units");
    }
    int result = kSuccess;
    for (int kind = 0; kind < vex::CVexUnitCnv::kNumKinds; ++kind) {
        const CString name = vex::GetUnitSettingsKey(kind);
        if (name.IsEmpty()) continue;
        CString line;
        if (units.GetUnitKey(kind).IsEmpty()) {
            line.Format(u"%-12s %-8s (default)", name.GetString(),
                        units.GetUnitMnem(kind).GetString());
        } else {
            line.Format(u"%-12s %-8s %s", name.GetString(), units.GetUnitKey(kind).GetString(),
                        units.GetUnitDispName(kind).GetString());
        }
        PrintLine(line);
        CString chosen;
        vex::UnitItem item;
        if (!known && file.GetItem(vex::UNITS_SECTION, name, chosen) &&
            !UnitDefinition::FindUnit(kind, chosen.Trim(), item)) {
            result = Fail(kInputOutput, o.file,
                          "unknown unit \"" + chosen.ToUtf8() + "\" for " + name.ToUtf8() +
                              ": the default is used");
        }
    }
    return result;
}

}  // namespace

void AddUnitsCommand(CLI::App& app, Action& run) {
    auto o = std::make_shared<UnitsOptions>();
    CLI::App* cmd = app.add_subcommand("units", "List units, convert values, show a file's units");
    cmd->require_subcommand(1);
    cmd->footer("Example: vex units convert 12.5 ft m\n  3.81 m");

    CLI::App* list = cmd->add_subcommand("list", "The selectable units, by group");
    list->footer("Example: vex units list");
    list->callback([&run] { run = [] { return RunList(); }; });

    CLI::App* convert =
        cmd->add_subcommand("convert", "Convert a value between two units of the same quantity");
    convert->add_option("value", o->value, "the value, in the first unit")->required();
    convert->add_option("from", o->from, "the unit of the value (mnemonic or key)")->required();
    convert->add_option("to", o->to, "the unit to show it in (mnemonic or key)")->required();
    convert
        ->add_option("--decimals", o->decimals,
                     "decimals (default: those of the quantity's display format)")
        ->check(CLI::Range(0, 15));
    convert
        ->add_option("--feet-mode", o->feetMode,
                     "feet and inches for results in ft: 2 whole inches, 4 sixteenths")
        ->check(CLI::Range(0, 9));
    convert->footer("Example: vex units convert 100 Celsius Fahrenheit\n  212.0 \u00B0F");
    convert->callback([o, &run] { run = [o] { return RunConvert(*o); }; });

    CLI::App* show = cmd->add_subcommand("show", "The units a settings file selects");
    show->add_option("file", o->file, "the settings file")->required();
    show->footer("Example: vex units show vessel.ini\n  Depth        ft       International foot");
    show->callback([o, &run] { run = [o] { return RunShow(*o); }; });
}

}  // namespace vextool
