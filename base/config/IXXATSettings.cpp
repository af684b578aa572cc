#include <base/config/IXXATSettings.h>

namespace vex {

IXXATSettings::IXXATSettings() {
    ResetToDefaults();
}

IXXATSettings::~IXXATSettings() = default;

void IXXATSettings::ResetToDefaults() {
    m_interfaceName.Empty();
    m_busName.Empty();
    m_lineNumber = 0;
}

}  // namespace vex
