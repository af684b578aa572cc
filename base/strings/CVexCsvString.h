// CVexCsvString.h - one line of a CSV export file, built item by item in
// the form the user's spreadsheet program reads back.
//
// The list separator and the decimal symbol are the user's regional
// settings, read once when the record is made (";" and "," when the system
// cannot tell). An item that holds the separator is stored in double
// quotes; quotes inside it are not doubled. Items are kept as stored, so
// operator[] shows the quotes.
//
//   vex::CVexCsvString line;
//   line += u"Depth";
//   line.AddItem(12.5, 2);      // "12.50", or "12,50" with a comma decimal
//   vex::CString text = line.String();
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>

#include <vector>

namespace vex {

class VEXBASE_API CVexCsvString {
  public:
    // An empty record with the user's decimal symbol and list separator.
    CVexCsvString();
    // An empty record with the given symbols, whatever the user's settings
    // say: for files that other machines read. An empty symbol keeps the
    // default ("," decimal, ";" separator).
    CVexCsvString(const CString& decimalSymbol, const CString& separator);

    // Append text, protected.
    void AddItem(const CString& text);
    CVexCsvString& operator+=(const CString& text);
    CVexCsvString operator+(const CString& text) const;

    // Item index = the protected text; the list first grows to index + 1
    // items (new ones empty). False, with nothing changed, when index < 0.
    bool SetItem(int index, const CString& text);
    // SetItem without the result; narrow text is in the active code page.
    void Set(int index, CStringA::TextArg narrowText);
    void Set(int index, const char16_t* text);
    void Set(int index, const CString& text);

    // Append value (or set item index to it, as SetItem above) printed by
    // FormatDouble with decimals decimals (below 0 counts as 0), then
    // passed through AdjustToLocalDecimal.
    void AddItem(double value, int decimals);
    bool SetItem(int index, double value, int decimals);

    // Inserts the protected text before item index; an index past the end
    // appends, a negative one inserts at the front.
    void Insert(int index, const CString& text);
    // Removes count items from first on, as far as there are any.
    void Erase(int first, int count = 1);

    // Item index as stored. Throws std::out_of_range outside 0 .. Size()-1.
    CString& operator[](int index);
    const CString& operator[](int index) const;

    int Size() const { return static_cast<int>(items_.size()); }
    bool IsEmpty() const { return items_.empty(); }
    void Clear() { items_.clear(); }
    // Size() - 1: -1 for an empty record.
    int CountSeparators() const { return Size() - 1; }
    const CString& GetSeparator() const { return separator_; }
    const CString& GetDecimalSymbol() const { return decimal_; }

    // True when some item equals text ignoring case; index receives the
    // first such position (and is left as it is otherwise).
    bool HasSubString(const CString& text) const;
    bool HasSubString(const CString& text, int& index) const;

    // The items joined by the separator; "" for an empty record.
    CString String() const;
    CString GetString() const { return String(); }
    // The first (last) n items, each followed by the separator. Left gives
    // "" for n < 1 and all items for n > Size(); Right gives "" for n < 1
    // or n > Size().
    CString Left(int n) const;
    CString Right(int n) const;

    // text in double quotes when it holds the separator, else as it is.
    CString ProtectSeperator(const CString& text) const;
    // ProtectSeperator, then every "." replaced by the decimal symbol. In
    // this order, so a number whose decimal symbol is the separator stays
    // unquoted (and splits when read back).
    CString AdjustToLocalDecimal(const CString& text) const;

  private:
    // Item index = item, growing the list as SetItem does.
    bool StoreItem(int index, CString item);

    std::vector<CString> items_;
    CString decimal_ = u",";
    CString separator_ = u";";
};

}  // namespace vex
