#include <base/errors/ErrorString.h>

#include <base/framework/StringResources.h>

namespace vex {
namespace {

// Per thread, like errno: one thread's failure must not show as another's.
thread_local CString t_lastError;

}  // namespace

ErrorString::ErrorString(int resourceId) {
    if (resourceId != 0) m_text = LoadStringResource(resourceId);
    Changed();
}

ErrorString::ErrorString(const char16_t* text) : m_text(text) {
    Changed();
}

ErrorString::ErrorString(const CString& text) : m_text(text) {
    Changed();
}

ErrorString::ErrorString(const wchar_t* text) : m_text(text) {
    Changed();
}

ErrorString::ErrorString(const std::wstring& text) : m_text(text) {
    Changed();
}

ErrorString& ErrorString::operator<<(const CString& text) {
    m_text += text;
    Changed();
    return *this;
}

ErrorString& ErrorString::operator<<(const char16_t* text) {
    return *this << CString(text);
}

ErrorString& ErrorString::operator<<(const wchar_t* text) {
    return *this << CString(text);
}

ErrorString& ErrorString::operator<<(const std::wstring& text) {
    return *this << CString(text);
}

ErrorString& ErrorString::operator<<(const ErrorString& other) {
    return *this << other.m_text;
}

void ErrorString::Changed() {
    m_wide = m_text.ToWide();
    if (!m_text.IsEmpty()) t_lastError = m_text;
}

ErrorString ErrorString::LastError() {
    return ErrorString(t_lastError);
}

void ErrorString::ResetLastError() {
    t_lastError.Empty();
}

}  // namespace vex
