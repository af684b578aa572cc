#include <base/errors/Errors.h>

#include <gtest/gtest.h>

namespace vex {
namespace {

GenericError At(long long time, const char16_t* text) {
    GenericError e(text);
    e.SetErrorTime(time);
    return e;
}

CString Texts(const ErrorList& list) {
    CString all;
    for (int i = 0; i < list.NumErrors(); ++i)
        all += list[i]->Format() + u";";
    return all;
}

TEST(ErrorList, KeepsTimeOrderWithEqualTimesInArrivalOrder) {
    ErrorList list;
    list << At(20, u"b") << At(10, u"a") << At(20, u"c") << At(30, u"d") << At(20, u"e")
         << At(5, u"z");
    EXPECT_EQ(Texts(list), CString(u"z;a;b;c;e;d;"));
    EXPECT_EQ(list[6], nullptr);
    EXPECT_EQ(list[-1], nullptr);
}

TEST(ErrorList, ARepeatedErrorReplacesItsEarlierOccurrence) {
    ErrorList list;
    FileError first(u"C:\\a\\tide.tid", FileError::OPEN);
    first.SetErrorTime(100);
    FileError again(u"C:\\a\\tide.tid", FileError::OPEN);
    again.SetErrorTime(200);
    list << first << At(150, u"other") << again;
    ASSERT_EQ(list.NumErrors(), 2);
    EXPECT_EQ(list[1]->GetID(), again.GetID());
    EXPECT_EQ(list.GetErrorWithID(first.GetID()), nullptr);
    EXPECT_NE(list.GetErrorWithID(again.GetID()), nullptr);
}

TEST(ErrorList, HoldsAtMost250AndDropsTheOldest) {
    ErrorList list;
    for (int i = 0; i < 251; ++i) {
        CString text;
        text.Format(u"e%d", i);
        list << At(1000 + i, text);
    }
    EXPECT_EQ(list.NumErrors(), 250);
    EXPECT_EQ(list[0]->Format(), CString(u"e1"));
    EXPECT_EQ(list[249]->Format(), CString(u"e250"));
}

TEST(ErrorList, ClearFromTimeRemovesThatTimeAndLater) {
    ErrorList list;
    list << At(10, u"a") << At(20, u"b") << At(30, u"c");
    list.ClearFromTime(20);
    EXPECT_EQ(Texts(list), CString(u"a;"));
    list.Clear();
    EXPECT_EQ(list.NumErrors(), 0);
}

}  // namespace
}  // namespace vex
