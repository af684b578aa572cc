// DaxError.h - a failure of a data computation: interpolation,
// extrapolation, reading or computing a value for a time.
//
// The code is a bit set; when several bits are set, the highest of
// 1, 2, 4, 8 chooses the message template (section "Dax Error" of the
// error-message file), which is applied to the stack text.
#pragma once

#include <base/errors/Error.h>

namespace vex {

class VEXBASE_API DaxError : public Error {
  public:
    enum DAXCODE { INTERPOLATE = 1, EXTRAPOLATE = 2, READ = 4, COMPUTATION = 8 };

    // time: the time value (ms since 1970 UTC) the computation was asked for.
    DaxError(const CString& stack, unsigned code, const CString& fileName, bool start, double time);

    const CString& Stack() const { return m_stack; }
    unsigned Code() const { return m_code; }
    const CString& Filename() const { return m_fileName; }
    bool Start() const { return m_start; }
    double Time() const { return m_time; }

    // Key "Type" of section "Dax Error", else "Dax Error".
    CString Type() const override;
    CString Format() const override;
    // "Start On  " or "Start Off ", then the file and the time.
    CString Details() const override;
    Error* Copy() const override;
    // CRC of the stack text, the code, the file name, the start flag and
    // the time's eight bytes.
    unsigned int Signature() const override;

  private:
    CString m_stack;
    unsigned m_code;
    CString m_fileName;
    bool m_start;
    double m_time;
};

}  // namespace vex
