// ErrorString.h - a success-or-message result: empty means success, any
// text is the message of the failure.
//
//   vex::ErrorString Check(...) { if (bad) return vex::ErrorString(false); return true; }
//   if (auto r = Check(...); !r) Show(r.c_str());
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>
#include <base/framework/StringResources.h>

#include <concepts>
#include <string>

namespace vex {

class VEXBASE_API ErrorString {
  public:
    // Success.
    ErrorString() = default;
    // true: success (empty); false: "Unspecified Error". Only a real bool
    // gets here: a returned number or text must not turn into success.
    template <class Bool>
    requires std::same_as<Bool, bool> ErrorString(Bool ok)
        : ErrorString(ok ? 0 : IDS_UNSPECIFIED_ERROR) {}
    // The text of the library's string resource resourceId; 0 is success.
    ErrorString(int resourceId);
    ErrorString(const char16_t* text);
    ErrorString(const CString& text);
    ErrorString(const wchar_t* text);
    ErrorString(const std::wstring& text);

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
    // The text as wchar_t (UTF-32 where wchar_t is 32 bits wide).
    operator const std::wstring&() const { return m_wide; }
    const std::wstring& ToWide() const { return m_wide; }

    // The last failing result built on this thread (empty when none since
    // the last reset).
    static ErrorString LastError();
    static void ResetLastError();

  private:
    // Keeps the wide copy in step and remembers a failure as the last error.
    void Changed();

    CString m_text;
    std::wstring m_wide;
};

}  // namespace vex
