// Config.h - configuration files: the sectioned text file object, its
// section handles and single-section objects, the checksum section, and
// the CRC-32 register used for checksums.
#pragma once

#include <base/config/CRCChecksum.h>
#include <base/config/ChecksumSection.h>
#include <base/config/FileObject.h>
#include <base/config/FileSection.h>
#include <base/config/FobjSection.h>
