// CFileSettings.h - where and how often a driver logs its output to a file.
//
// Periods and rates are in seconds. ResetToDefaults restores only the file
// name: the period and rate settings are the user's and survive a reset.
//
//   vex::CFileSettings log;
//   log.SetFileName(u"D:\\Logs\\gyro.log"); log.SetUserLogPeriod(5.0);
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>

namespace vex {

class VEXBASE_API CFileSettings {
  public:
    // File "OutputLogFile", period mode 0, user period 1.0, no overwritten
    // output rate, output rate 0.1.
    CFileSettings();
    CFileSettings(const CFileSettings&) = default;
    CFileSettings& operator=(const CFileSettings&) = default;
    virtual ~CFileSettings();

    // Sets the file name back to "OutputLogFile"; nothing else.
    void ResetToDefaults();

    const CString& GetFileName() const { return m_fileName; }
    void SetFileName(const CString& fileName) { m_fileName = fileName; }
    int GetFileLogPerioMode() const { return m_fileLogPeriodMode; }
    void SetFileLogPerioMode(int mode) { m_fileLogPeriodMode = mode; }
    double GetUserLogPeriod() const { return m_userLogPeriod; }
    void SetUserLogPeriod(double period) { m_userLogPeriod = period; }
    bool GetOverwriteOutputRate() const { return m_overwriteOutputRate; }
    void SetOverwriteOutputRate(bool overwrite) { m_overwriteOutputRate = overwrite; }
    double GetOutputRate() const { return m_outputRate; }
    void SetOutputRate(double rate) { m_outputRate = rate; }

  private:
    CString m_fileName;
    int m_fileLogPeriodMode = 0;
    double m_userLogPeriod = 1.0;
    bool m_overwriteOutputRate = false;
    double m_outputRate = 0.1;
};

}  // namespace vex
