// CArray.h - CArray<T>, the framework's growable array, as a value type.
//
// Indices are int and start at 0. An index outside 0 .. GetSize()-1 makes
// the element accessors throw std::invalid_argument, as the framework's
// array does in release builds; nothing is read or written then. Copies are
// independent values. Not thread-safe.
//
//   vex::CArray<int> depths;
//   int i = depths.Add(12);      // 0
//   depths.InsertAt(0, 7);       // 7, 12
//   depths.RemoveAt(1);          // 7
#pragma once

#include <cstddef>
#include <stdexcept>
#include <utility>
#include <vector>

namespace vex {

template <class T>
class CArray {
  public:
    CArray() = default;
    CArray(const CArray&) = default;
    CArray(CArray&&) noexcept = default;
    CArray& operator=(const CArray&) = default;
    CArray& operator=(CArray&&) noexcept = default;
    virtual ~CArray() = default;

    // --- size --------------------------------------------------------------
    int GetSize() const { return static_cast<int>(items_.size()); }
    int GetCount() const { return GetSize(); }
    bool IsEmpty() const { return items_.empty(); }
    // The last valid index; -1 when empty.
    int GetUpperBound() const { return GetSize() - 1; }
    // Grows with default elements or cuts to newSize. growBy is the
    // framework's allocation step; the library grows geometrically instead,
    // so it is accepted and ignored. Throws for a negative size.
    void SetSize(int newSize, int growBy = -1) {
        (void)growBy;
        if (newSize < 0) throw std::invalid_argument("CArray::SetSize: negative size");
        items_.resize(static_cast<std::size_t>(newSize));
    }
    // Gives unused capacity back.
    void FreeExtra() { items_.shrink_to_fit(); }

    // --- elements -----------------------------------------------------------
    const T& GetAt(int index) const { return items_[Checked(index)]; }
    T& ElementAt(int index) { return items_[Checked(index)]; }
    const T& ElementAt(int index) const { return items_[Checked(index)]; }
    void SetAt(int index, const T& value) { items_[Checked(index)] = value; }
    T& operator[](int index) { return ElementAt(index); }
    const T& operator[](int index) const { return GetAt(index); }
    // The elements in one block; null when empty. Valid until the size changes.
    T* GetData() { return items_.empty() ? nullptr : items_.data(); }
    const T* GetData() const { return items_.empty() ? nullptr : items_.data(); }

    // --- adding and removing ------------------------------------------------
    // Appends value; returns its index.
    int Add(const T& value) {
        items_.push_back(value);
        return GetUpperBound();
    }
    // Sets the element at index, first growing the array to reach it.
    void SetAtGrow(int index, const T& value) {
        if (index < 0) throw std::invalid_argument("CArray::SetAtGrow: negative index");
        if (index >= GetSize()) SetSize(index + 1);
        items_[static_cast<std::size_t>(index)] = value;
    }
    // Inserts count copies of value before index. An index past the end
    // first grows the array with default elements up to it, as the
    // framework does. Throws for a negative index or count.
    void InsertAt(int index, const T& value, int count = 1) {
        if (index < 0 || count < 0) throw std::invalid_argument("CArray::InsertAt: negative");
        if (index > GetSize()) SetSize(index);
        // A copy first: value may be an element of this array.
        const T copy = value;
        items_.insert(items_.begin() + index, static_cast<std::size_t>(count), copy);
    }
    // Inserts every element of other before index.
    void InsertAt(int index, const CArray& other) {
        if (index < 0) throw std::invalid_argument("CArray::InsertAt: negative index");
        if (index > GetSize()) SetSize(index);
        const std::vector<T> copy = other.items_;  // other may be *this
        items_.insert(items_.begin() + index, copy.begin(), copy.end());
    }
    // Removes count elements from index; throws, removing nothing, when the
    // range is not inside the array.
    void RemoveAt(int index, int count = 1) {
        if (index < 0 || count < 0 || count > GetSize() - index) {
            throw std::invalid_argument("CArray::RemoveAt: range outside the array");
        }
        items_.erase(items_.begin() + index, items_.begin() + index + count);
    }
    void RemoveAll() { items_.clear(); }
    // Appends the elements of other; returns the index of the first of them.
    int Append(const CArray& other) {
        const int first = GetSize();
        const std::vector<T> copy = other.items_;
        items_.insert(items_.end(), copy.begin(), copy.end());
        return first;
    }
    // Makes this array a copy of other.
    void Copy(const CArray& other) {
        if (this != &other) items_ = other.items_;
    }

    // Range-for over the elements.
    auto begin() { return items_.begin(); }
    auto end() { return items_.end(); }
    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }

  private:
    std::size_t Checked(int index) const {
        if (index < 0 || index >= GetSize()) {
            throw std::invalid_argument("CArray: index outside the array");
        }
        return static_cast<std::size_t>(index);
    }

    std::vector<T> items_;
};

}  // namespace vex
