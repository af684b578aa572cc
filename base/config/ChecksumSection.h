// ChecksumSection.h - the reserved section "Checksum" that guards a
// configuration file against damage and unnoticed edits: computing its two
// values, writing them into a file object and verifying a loaded one.
//
// The values depend only on the sections, keys and values outside the
// checksum section, never on how the file is laid out on disk (order of
// sections and keys, spacing, comments, extra lines). They are computed
// over this canonical text, encoded as UTF-8:
//   every section except "Checksum", sorted by name in code-unit order,
//   each as "[" name "]\n" followed by its items sorted by key in
//   code-unit order, each as key "=" value "\n".
// "Checksum" is the CRC-32 of those bytes (CRCChecksum::ValueInverted) as
// eight upper-case hexadecimal digits; "Integrity" is
// "<sections>/<items>/<CRC-16>": the number of sections and of items that
// went in, in decimal, and Compute16BitCRC of the same bytes as four
// upper-case hexadecimal digits. A file of the one section "[GPS]" with
// "Port = 4001" has the text "[GPS]\nPort=4001\n", giving "Checksum"
// "2EE21CEF" and "Integrity" "1/1/D3EE".
// A checksum detects damage and edits, not deliberate forgery.
#pragma once

#include <base/Export.h>
#include <base/config/FileObject.h>
#include <base/framework/CString.h>

namespace vex {

// The keys of the checksum section: "Checksum" and "Integrity".
VEXBASE_API extern const CString checksumKeys[2];

struct ChecksumValues {
    CString checksum;   // "Checksum": eight hexadecimal digits
    CString integrity;  // "Integrity": sections/items/CRC-16
};

// The two values for the content of file outside its checksum section.
VEXBASE_API ChecksumValues ComputeChecksumValues(const FileObject& file);

// Computes both values and stores them in section "Checksum" of file,
// creating it at the end when missing. Other keys there are kept.
VEXBASE_API void WriteChecksumSection(FileObject& file);

// True when file has a checksum section whose two values match its
// content (hexadecimal digits compare without regard to case). False when
// the section or one of its keys is missing or a value does not match; the
// last two are also reported to GlobalErrorList as a GenericError of type
// "Checksum Error" naming the file, under the file's error context. A file
// without a checksum section is not reported: the caller decides whether
// it must have one.
VEXBASE_API bool VerifyChecksumSection(const FileObject& file);

}  // namespace vex
