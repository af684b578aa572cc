#include <base/config/CFileSettings.h>

namespace vex {

CFileSettings::CFileSettings() {
    ResetToDefaults();
}

CFileSettings::~CFileSettings() = default;

void CFileSettings::ResetToDefaults() {
    m_fileName = u"OutputLogFile";
}

}  // namespace vex
