// Console.h - the tool's output: UTF-8 text on standard output, errors as
// one line on standard error naming the file and the reason.
#pragma once

#include <base/framework/CString.h>

#include <string>
#include <string_view>

namespace vextool {

void Print(std::string_view utf8);
void PrintLine(std::string_view utf8 = {});
void PrintLine(const vex::CString& text);

// "vex: <file>: <reason>" on standard error; returns code.
int Fail(int code, std::string_view file, std::string_view reason);
// "vex: <reason>" on standard error; returns code.
int Fail(int code, std::string_view reason);

}  // namespace vextool
