// CVexFixedString.h - fields of a fixed-column text record, as devices send
// them: each value at a known column range of the line.
//
// A field is named by its start column and width; columns count from the
// base (0 by default, so with base 1 the first character is column 1). A
// field that runs past the end of the record is cut there, not refused.
// Numbers are read as scanf reads them (leading blanks skipped, text after
// the number ignored); a getter that fails leaves its output unchanged.
//
//   vex::CVexFixedString record(u"ABC 12.5", 0);
//   double depth = 0;
//   record.GetItem(4, 4, depth);  // true, depth == 12.5
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>

namespace vex {

class VEXBASE_API CVexFixedString {
  public:
    CVexFixedString() = default;
    CVexFixedString(const CString& text, int base) : text_(text), base_(base) {}

    // The column number of the record's first character; the text stays.
    void SetBase(int base) { base_ = base; }
    int GetBase() const { return base_; }

    // Replaces the record; narrow text is in the active code page.
    void LoadStringW(const CString& text) { text_ = text; }
    void LoadStringW(CStringA::TextArg narrowText);

    // The record's length in characters (UTF-16 code units).
    int Size() const { return text_.GetLength(); }
    const CString& GetString() const { return text_; }

    // The field of width characters at column, converted into out. False,
    // with out unchanged, when column lies outside the record, when width
    // is below 1, or when the field holds no number of out's type ("%d",
    // "%u", "%hu", "%lf", "%f"; a bool is read as "%d" and is true when not
    // 0). A number beyond the range of out's type fails too.
    bool GetItem(int column, int width, CString& out) const;
    bool GetItem(int column, int width, int& out) const;
    bool GetItem(int column, int width, unsigned int& out) const;
    bool GetItem(int column, int width, unsigned short& out) const;
    bool GetItem(int column, int width, double& out) const;
    bool GetItem(int column, int width, float& out) const;
    bool GetItem(int column, int width, bool& out) const;
    // As GetItem, the field read as hex digits ("%x": "ff", "0x1F").
    bool GetHexItem(int column, int width, unsigned int& out) const;

  private:
    // Turns column into an index of the text and cuts width at the end of
    // the record; true when the field lies in the record and is not empty.
    bool CheckInString(int& column, int& width) const;
    // The selected field, or false.
    bool Field(int column, int width, std::u16string_view& field) const;

    CString text_;
    int base_ = 0;
};

}  // namespace vex
