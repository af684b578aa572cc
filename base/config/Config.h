// Config.h - configuration files: the sectioned text file object, its
// section handles and single-section objects, the checksum section, and
// the CRC-32 register used for checksums.
#pragma once

#include <base/config/CFileSettings.h>
#include <base/config/CNetSettings.h>
#include <base/config/CRCChecksum.h>
#include <base/config/CSerialSettings.h>
#include <base/config/ChecksumSection.h>
#include <base/config/FileObject.h>
#include <base/config/FileSection.h>
#include <base/config/FobjSection.h>
#include <base/config/IXXATSettings.h>
#include <base/config/OPCSettings.h>
#include <base/config/OpcUaSettings.h>
