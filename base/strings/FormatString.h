// FormatString.h - the strings and formatting subsystem in one include:
// number texts with sensible precision and feet-inch modes, byte sizes,
// delimited item lists, geographic angles, and the text helpers.
//
// Numbers are printed and read with the "C" decimal point; wide text is
// vex::CString (UTF-16), narrow text (names ending in A) is in the active
// code page.
#pragma once

#include <base/strings/ByteSize.h>
#include <base/strings/CVexString.h>
#include <base/strings/FeetInch.h>
#include <base/strings/GeographicAngles.h>
#include <base/strings/NumberFormat.h>
#include <base/strings/Precision.h>
