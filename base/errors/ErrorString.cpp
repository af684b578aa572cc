#include <base/errors/ErrorString.h>

#include <base/framework/StringResources.h>

namespace vex {
namespace {

// Per thread, like errno: one thread's failure must not show as another's.
thread_local CString t_lastError;

}  // namespace

ErrorString::ErrorString(bool ok) {
    if (!ok) m_text = LoadStringResource(IDS_UNSPECIFIED_ERROR);
    Remember();
}

ErrorString::ErrorString(int resourceId) : m_text(LoadStringResource(resourceId)) {
    Remember();
}

ErrorString::ErrorString(const char16_t* text) : m_text(text) {
    Remember();
}

ErrorString::ErrorString(const CString& text) : m_text(text) {
    Remember();
}

ErrorString::ErrorString(const wchar_t* text) : m_text(text) {
    Remember();
}

ErrorString::ErrorString(const std::wstring& text) : m_text(text) {
    Remember();
}

ErrorString& ErrorString::operator<<(const CString& text) {
    m_text += text;
    Remember();
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

void ErrorString::Remember() const {
    if (!m_text.IsEmpty()) t_lastError = m_text;
}

ErrorString ErrorString::LastError() {
    ErrorString copy;
    copy.m_text = t_lastError;
    return copy;
}

void ErrorString::ResetLastError() {
    t_lastError.Empty();
}

}  // namespace vex
