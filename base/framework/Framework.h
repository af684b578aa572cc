// Framework.h - the portable stand-ins for the Windows framework's types:
// strings, printf/scanf-style formatting, small graphics value types, file
// flags and utilities, and the library's string table.
#pragma once

#include <base/framework/AtomicFile.h>
#include <base/framework/ByteStream.h>
#include <base/framework/CArchive.h>
#include <base/framework/CArray.h>
#include <base/framework/CDC.h>
#include <base/framework/CDataExchange.h>
#include <base/framework/CFile.h>
#include <base/framework/CMap.h>
#include <base/framework/CPoint.h>
#include <base/framework/CRect.h>
#include <base/framework/CStdioFile.h>
#include <base/framework/CString.h>
#include <base/framework/CharBuffer.h>
#include <base/framework/ColorRef.h>
#include <base/framework/Dcb.h>
#include <base/framework/FileIoError.h>
#include <base/framework/FileStream.h>
#include <base/framework/Format.h>
#include <base/framework/LittleEndian.h>
#include <base/framework/MemFile.h>
#include <base/framework/PaletteEntry.h>
#include <base/framework/Position.h>
#include <base/framework/Scan.h>
#include <base/framework/StringResources.h>
#include <base/framework/SuiteTypes.h>
#include <base/framework/SvgDC.h>
#include <base/framework/TextEncoding.h>
#include <base/framework/TextEncodingType.h>
#include <base/framework/TreeItem.h>
