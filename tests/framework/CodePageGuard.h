// CodePageGuard.h - sets the process-wide active code page for the life of
// a test and restores the previous one afterwards, even when the test fails.
#pragma once

#include <base/framework/TextEncoding.h>

namespace vex::test {

class CodePageGuard {
  public:
    explicit CodePageGuard(CodePage page) : saved_(GetActiveCodePage()) { SetActiveCodePage(page); }
    ~CodePageGuard() { SetActiveCodePage(saved_); }
    CodePageGuard(const CodePageGuard&) = delete;
    CodePageGuard& operator=(const CodePageGuard&) = delete;

  private:
    CodePage saved_;
};

}  // namespace vex::test
