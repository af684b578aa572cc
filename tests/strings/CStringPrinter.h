// CStringPrinter.h - lets GoogleTest print CString and CStringA values in
// failure messages of the strings tests.
#pragma once

#include <base/framework/CString.h>

#include <gtest/gtest.h>

#include <ostream>

namespace vex {

template <class Ch>
void PrintTo(const CStringT<Ch>& text, std::ostream* os) {
    *os << testing::PrintToString(text.Str());
}

}  // namespace vex
