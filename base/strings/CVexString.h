// CVexString.h - a line of separator-delimited items, split into a list
// that can be read, converted, changed and joined again.
//
// The list is a value: copies are independent, and one object is not shared
// between threads without the caller's own lock. Items are wide text; item
// indices start at 0.
//
//   vex::CVexString line(u"12, 0x1F ,depth", u',', true);  // trimmed items
//   int n = 0;
//   line.GetItem(1, n);          // n == 31
//   line.SetItem(3, u"m");       // u"12,0x1F,depth,m"
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>

#include <vector>

namespace vex {

// A separator-delimited list of items, parsed from one source line and
// joined back with String(). The separator is one character, "," by default.
// With the space as separator, runs of spaces count as one and spaces at the
// ends are dropped. With the trim flag, each item loses the white space at
// both ends.
class VEXBASE_API CVexString {
  public:
    // An empty list (no items) with the given separator and no trimming.
    explicit CVexString(char16_t separator = u',');
    // Stores text, separator and flag and splits the text.
    CVexString(const CString& text, char16_t separator = u',', bool trimItems = false);

    // Replaces the source, stores the trim flag and splits again. Narrow
    // text is in the active code page.
    void LoadStringW(const CString& text, bool trimItems = false);
    void LoadStringW(const CStringA& text, bool trimItems = false);

    // Stores the separator and splits the last loaded text again; items that
    // were added or changed since are replaced. To build a list with another
    // separator, pass it to the constructor.
    void SetSeparator(char16_t separator);
    char16_t GetSeparator() const { return separator_; }

    // The number of items; an empty source text gives one empty item.
    int Size() const { return static_cast<int>(items_.size()); }
    // Size() - 1: -1 for a list without items.
    int CountSeparators() const { return Size() - 1; }
    bool IsEmpty() const { return items_.empty(); }
    // Removes every item; source, separator and flag stay.
    void Clear() { items_.clear(); }

    // Item i; throws std::out_of_range when i is not 0 .. Size()-1.
    CString& operator[](int i);
    const CString& operator[](int i) const;
    const std::vector<CString>& SubStrings() const { return items_; }

    // Converts item i into out. False, with out unchanged, when i is out of
    // range or the item does not convert to exactly one value; characters
    // after the number are ignored ("12abc" gives 12). An int item that is
    // longer than "0x" and starts with 0x or 0X is hexadecimal ("0x1F" is
    // 31, "0x" alone fails). A bool is that int, true when not 0. The
    // unsigned, double and float items read as sscanf's "%u", "%hu", "%lf"
    // and "%f" do.
    bool GetItem(int i, CString& out) const;
    bool GetItem(int i, int& out) const;
    bool GetItem(int i, bool& out) const;
    bool GetItem(int i, unsigned int& out) const;
    bool GetItem(int i, unsigned short& out) const;
    bool GetItem(int i, double& out) const;
    bool GetItem(int i, float& out) const;

    // Sets item i to text, first growing the list with empty items up to i.
    // False, with the list unchanged, when i < 0.
    bool SetItem(int i, const CString& text);
    // SetItem with narrow text in the active code page.
    bool Set(int i, const CStringA& text);

    // Appends text as a further item.
    void AddItem(const CString& text);
    CVexString& operator+=(const CString& text);
    // A copy of this list with text appended.
    CVexString operator+(const CString& text) const;
    // Inserts text before item i (i is clamped to 0 .. Size()).
    void Insert(int i, const CString& text);
    // Removes n items from i on (clamped to the items there are).
    void Erase(int i, int n = 1);

    // True when an item equals text, ignoring case; index receives the first
    // such item's index and is unchanged when there is none.
    bool HasSubString(const CString& text) const;
    bool HasSubString(const CString& text, int& index) const;

    // The character positions of item i in String(): start is the sum of
    // (length + 1) over the items before it, end = start + length - 1, or -1
    // for an empty item. False, with both unchanged, when i is out of range.
    bool GetItemBoundaries(int i, int& start, int& end) const;

    // The items joined with the separator; "" for an empty list.
    CString String() const;
    CString GetString() const { return String(); }
    // The first n items (at most Size()), each followed by the separator;
    // "" when n <= 0.
    CString Left(int n) const;
    // The last n items, each followed by the separator; "" when n <= 0 or n >
    // Size().
    CString Right(int n) const;

  private:
    void Split();

    std::vector<CString> items_;
    char16_t separator_ = u',';
    CString source_;
    bool trimItems_ = false;
};

}  // namespace vex
