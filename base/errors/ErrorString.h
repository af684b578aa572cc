// ErrorString.h - a success-or-message result: empty means success, any
// text is the message of the failure.
//
//   vex::ErrorString Check(...) { if (bad) return vex::ErrorString(false); return true; }
//   if (auto r = Check(...); !r) Show(r.c_str());
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>

#include <string>

namespace vex {

class VEXBASE_API ErrorString {
  public:
    // true: success (empty); false: "Unspecified Error".
    ErrorString(bool ok = true);
    // The text of the library's string resource resourceId.
    explicit ErrorString(int resourceId);
    ErrorString(const char16_t* text);
    ErrorString(const CString& text);
    explicit ErrorString(const wchar_t* text);
    explicit ErrorString(const std::wstring& text);

    // True when there is no error.
    explicit operator bool() const { return m_text.IsEmpty(); }
    bool operator!() const { return !m_text.IsEmpty(); }

    ErrorString& operator<<(const CString& text);
    ErrorString& operator<<(const char16_t* text);
    ErrorString& operator<<(const wchar_t* text);
    ErrorString& operator<<(const std::wstring& text);
    ErrorString& operator<<(const ErrorString& other);

    const char16_t* c_str() const { return m_text.GetString(); }
    const CString& Text() const { return m_text; }
    operator const CString&() const { return m_text; }
    std::wstring ToWide() const { return m_text.ToWide(); }

    // The last failing result built on this thread (empty when none since
    // the last reset).
    static ErrorString LastError();
    static void ResetLastError();

  private:
    void Remember() const;

    CString m_text;
};

}  // namespace vex
