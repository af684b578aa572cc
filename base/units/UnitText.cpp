#include <base/units/UnitText.h>

#include <base/strings/FeetInch.h>
#include <base/strings/NumberFormat.h>
#include <base/strings/Precision.h>

#include <atomic>

namespace vex {
namespace {

std::atomic<int> g_feetDisplayMode{0};
std::atomic<int> g_feetInputMode{0};

bool HasDigit(const CString& text) {
    for (char16_t c : text.View()) {
        if (c >= u'0' && c <= u'9') return true;
    }
    return false;
}

}  // namespace

CVexUnitCnv& GetVexUnitCnv() {
    // Filled in while the static is made, so that threads reading the table
    // never race to initialise it.
    static CVexUnitCnv table = [] {
        CVexUnitCnv t;
        t.SetDefaults();
        return t;
    }();
    return table;
}

void SetFeetDisplayMode(int mode) {
    g_feetDisplayMode.store(mode, std::memory_order_relaxed);
}
int GetFeetDisplayMode() {
    return g_feetDisplayMode.load(std::memory_order_relaxed);
}
void SetFeetInputMode(int mode) {
    g_feetInputMode.store(mode, std::memory_order_relaxed);
}
int GetFeetInputMode() {
    return g_feetInputMode.load(std::memory_order_relaxed);
}

CString InternalValueToUnitString(double value, int formatId, int decimals) {
    const CVexUnitCnv& units = GetVexUnitCnv();
    const int kind = CVexUnitCnv::ConvertFMTtoUNIT(formatId);
    const double shown = units.ConvertUnit(kind, value);
    if (decimals < 0 && !StaticFormats::GetDefaultDecimals(formatId, decimals)) {
        decimals = GetDoublePrecision(shown);
    }
    const int mode = units.GetUnitMnem(kind) == CString(u"ft") ? GetFeetDisplayMode() : 0;
    return FormatDouble(shown, decimals, mode);
}

bool UnitStringToInternalValue(const CString& text, int formatId, double& value) {
    // The feet reader sets every part that is not a number to 0, so a text
    // without a single digit is refused here; the plain reader leaves its
    // output alone on failure, which two different starting values reveal.
    if (!HasDigit(text)) return false;
    const int mode = GetFeetInputMode();
    double read = 0.0;
    double check = 1.0;
    StringToValue(text.View(), read, mode);
    StringToValue(text.View(), check, mode);
    if (read != check) return false;
    value = GetVexUnitCnv().ConvertFromUnit(CVexUnitCnv::ConvertFMTtoUNIT(formatId), read);
    return true;
}

double UnitStringToInternalValue(const CString& text, int formatId) {
    double value = 0.0;
    UnitStringToInternalValue(text, formatId, value);
    return value;
}

void DDX_SysUnit(CDataExchange* pDX, int controlId, double& value, int formatId) {
    if (pDX == nullptr) return;
    if (pDX->m_bSaveAndValidate) {
        if (!UnitStringToInternalValue(pDX->GetControlText(controlId), formatId, value)) {
            pDX->Fail(controlId);
        }
    } else {
        pDX->SetControlText(controlId, InternalValueToUnitString(value, formatId));
    }
}

}  // namespace vex
