#include <base/framework/CArray.h>

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace vex {
namespace {

std::vector<std::string> Items(const CArray<std::string>& a) {
    return std::vector<std::string>(a.begin(), a.end());
}

TEST(CArray, AddInsertAndRemoveKeepTheOrder) {
    CArray<std::string> a;
    EXPECT_EQ(a.Add("b"), 0);
    EXPECT_EQ(a.Add("d"), 1);
    a.InsertAt(0, "a");
    a.InsertAt(2, "c", 2);
    EXPECT_EQ(Items(a), (std::vector<std::string>{"a", "b", "c", "c", "d"}));
    // Inserting an element of the array itself copies it before it moves.
    a.InsertAt(0, a[4]);
    EXPECT_EQ(a.GetAt(0), "d");
    a.RemoveAt(2, 3);
    EXPECT_EQ(Items(a), (std::vector<std::string>{"d", "a", "d"}));
    EXPECT_EQ(a.GetUpperBound(), 2);
    // Past the end, the array first grows with default elements.
    a.InsertAt(5, "x");
    EXPECT_EQ(Items(a), (std::vector<std::string>{"d", "a", "d", "", "", "x"}));
}

TEST(CArray, IndicesOutsideTheArrayThrowAndChangeNothing) {
    CArray<int> a;
    a.SetSize(3);
    a[1] = 5;
    EXPECT_THROW(a.GetAt(3), std::invalid_argument);
    EXPECT_THROW(a.GetAt(-1), std::invalid_argument);
    EXPECT_THROW(a.SetAt(3, 1), std::invalid_argument);
    EXPECT_THROW(a.ElementAt(-1), std::invalid_argument);
    EXPECT_THROW(a.RemoveAt(2, 2), std::invalid_argument);
    EXPECT_THROW(a.RemoveAt(-1), std::invalid_argument);
    EXPECT_THROW(a.InsertAt(-1, 1), std::invalid_argument);
    EXPECT_THROW(a.SetSize(-1), std::invalid_argument);
    EXPECT_EQ(a.GetSize(), 3);
    EXPECT_EQ(a[1], 5);
}

TEST(CArray, CopiesAppendAndCopyAreIndependent) {
    CArray<int> a;
    a.Add(1);
    a.Add(2);
    CArray<int> b = a;
    b[0] = 9;
    EXPECT_EQ(a[0], 1);
    EXPECT_EQ(a.Append(a), 2);  // appending itself doubles it
    EXPECT_EQ(a.GetSize(), 4);
    EXPECT_EQ(a[3], 2);
    b.Copy(a);
    a[3] = 7;
    EXPECT_EQ(b[3], 2);
    b.InsertAt(1, b);  // inserting itself
    EXPECT_EQ((std::vector<int>(b.begin(), b.end())), (std::vector<int>{1, 1, 2, 1, 2, 2, 1, 2}));
}

}  // namespace
}  // namespace vex
