#include <base/config/ChecksumSection.h>

#include <base/config/CRCChecksum.h>
#include <base/config/FobjSection.h>
#include <base/errors/GenericError.h>
#include <base/errors/GlobalErrorList.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

namespace vex {

const CString checksumKeys[2] = {CString(u"Checksum"), CString(u"Integrity")};

namespace {

constexpr std::u16string_view kChecksumKey = u"Checksum";
constexpr std::u16string_view kIntegrityKey = u"Integrity";

struct Canonical {
    std::string bytes;
    int sections = 0;
    int items = 0;
};

bool ByCodeUnits(const CString& a, const CString& b) {
    return a.View() < b.View();
}

// The sorted text described in the header. Section iteration already
// passes over the checksum section.
Canonical CanonicalText(const FileObject& file) {
    using Items = std::vector<std::pair<CString, CString>>;
    std::vector<std::pair<CString, Items>> sections;
    FobjSection cursor;
    CString name;
    for (bool more = file.GetFirstSectionEntry(cursor, name); more;
         more = file.GetNextSectionEntry(cursor, name)) {
        Items items;
        FobjSection itemCursor;
        CString key;
        CString value;
        for (bool item = file.GetFirstMapEntry(itemCursor, name, key, value); item;
             item = file.GetNextMapEntry(itemCursor, key, value)) {
            items.emplace_back(key, value);
        }
        std::sort(items.begin(), items.end(),
                  [](const auto& a, const auto& b) { return ByCodeUnits(a.first, b.first); });
        sections.emplace_back(name, std::move(items));
    }
    std::sort(sections.begin(), sections.end(),
              [](const auto& a, const auto& b) { return ByCodeUnits(a.first, b.first); });

    Canonical text;
    for (const auto& [section, items] : sections) {
        text.bytes.append("[").append(section.ToUtf8()).append("]\n");
        for (const auto& [key, value] : items)
            text.bytes.append(key.ToUtf8()).append("=").append(value.ToUtf8()).append("\n");
        ++text.sections;
        text.items += static_cast<int>(items.size());
    }
    return text;
}

CString Hex(unsigned value, int digits) {
    char text[16];
    std::snprintf(text, sizeof text, "%0*X", digits, value);
    return CString(std::u16string(text, text + std::char_traits<char>::length(text)));
}

bool ReportMismatch(const FileObject& file, const CString& details) {
    CString description;
    description.Format(u"The checksum section of \"%s\" does not match its content.",
                       file.GetFileName());
    GlobalErrorList::Get().Insert(GenericError(description, details, CString(u"Checksum Error")),
                                  file.GetErrorContext());
    return false;
}

}  // namespace

ChecksumValues ComputeChecksumValues(const FileObject& file) {
    const Canonical text = CanonicalText(file);
    const auto* begin = reinterpret_cast<const unsigned char*>(text.bytes.data());
    CRCChecksum crc;
    crc.Add(begin, text.bytes.size());
    ChecksumValues values;
    values.checksum = Hex(crc.ValueInverted(), 8);
    values.integrity.Format(u"%d/%d/", text.sections, text.items);
    values.integrity += Hex(Compute16BitCRC(begin, begin + text.bytes.size()), 4);
    return values;
}

void WriteChecksumSection(FileObject& file) {
    const ChecksumValues values = ComputeChecksumValues(file);
    file.SetItem(FileObject::CHECKSUM_SECTION, CString(kChecksumKey), values.checksum, true);
    file.SetItem(FileObject::CHECKSUM_SECTION, CString(kIntegrityKey), values.integrity, true);
}

bool VerifyChecksumSection(const FileObject& file) {
    const CString section(u"Checksum");
    if (!file.HasSection(section)) return false;
    CString storedChecksum;
    CString storedIntegrity;
    bool haveChecksum = false;
    bool haveIntegrity = false;
    // Read through the section's items, so that a file in throw mode does
    // not throw for a missing key.
    FobjSection cursor;
    CString key;
    CString value;
    for (bool item = file.GetFirstMapEntry(cursor, section, key, value); item;
         item = file.GetNextMapEntry(cursor, key, value)) {
        if (key.View() == kChecksumKey) {
            storedChecksum = value;
            haveChecksum = true;
        } else if (key.View() == kIntegrityKey) {
            storedIntegrity = value;
            haveIntegrity = true;
        }
    }
    if (!haveChecksum || !haveIntegrity) {
        return ReportMismatch(file, CString(u"The key \"Checksum\" or \"Integrity\" is missing."));
    }
    const ChecksumValues computed = ComputeChecksumValues(file);
    if (storedChecksum.CompareNoCase(computed.checksum) != 0 ||
        storedIntegrity.CompareNoCase(computed.integrity) != 0) {
        CString details;
        details.Format(u"Stored %s, %s; computed %s, %s.", storedChecksum, storedIntegrity,
                       computed.checksum, computed.integrity);
        return ReportMismatch(file, details);
    }
    return true;
}

}  // namespace vex
