#include <base/data/TreeItemMaps.h>

#include <gtest/gtest.h>

#include <vector>

namespace vex {
namespace {

// Handles the way a tree control hands them out: distinct, never dereferenced.
HTREEITEM Item(std::size_t n) {
    static char items[512];
    return reinterpret_cast<HTREEITEM>(&items[n]);
}

// The items of every entry equal to wanted, in iteration order.
template <class Map, class V>
std::vector<HTREEITEM> EqualItems(const Map& map, const V& wanted) {
    std::vector<HTREEITEM> found;
    HTREEITEM key = nullptr;
    V value;
    for (POSITION pos = map.GetStartPosition(); pos != nullptr;) {
        map.GetNextAssoc(pos, key, value);
        if (value == wanted) found.push_back(key);
    }
    return found;
}

TEST(TreeItemMaps, GetItemHandleFindsTheFirstEqualEntryInIterationOrder) {
    CMapTreeitemToDatainfo map;
    const CDataInfo wanted(CDataId(5, 1001, 2, 0), 3, CDataInfo::NO_INDEX);
    // Enough entries to grow the table a few times; every seventh holds the
    // wanted value, so several equal entries compete.
    for (std::size_t i = 0; i < 300; ++i) {
        map.SetAt(Item(i),
                  i % 7 == 3 ? wanted
                             : CDataInfo(CDataId(5, 1001, 2, 0), 3, static_cast<std::uint16_t>(i)));
        const std::vector<HTREEITEM> equal = EqualItems(map, wanted);
        HTREEITEM found = nullptr;
        ASSERT_EQ(map.GetItemHandle(wanted, found), !equal.empty()) << i;
        if (!equal.empty()) {
            ASSERT_EQ(found, equal.front()) << i;
        }
    }
    EXPECT_GT(map.GetHashTableSize(), 17);

    HTREEITEM untouched = Item(511);
    const CDataInfo absent(CDataId(5, 1001, 2, 0), 4, CDataInfo::NO_INDEX);
    EXPECT_FALSE(map.GetItemHandle(absent, untouched));
    EXPECT_EQ(untouched, Item(511));
}

TEST(TreeItemMaps, OffsetsAreFoundByTheirOwnEquality) {
    CMapTreeitemToOffset map;
    CCompOffset fixed;
    fixed.SetOffset(1, 2, 3);
    fixed.SetOffsetName(u"ignored for fixed values");
    CCompOffset unknown;
    unknown.SetOffsetType(4);
    map.SetAt(Item(1), fixed);
    map.SetAt(Item(2), unknown);

    CCompOffset query;
    query.SetOffset(1, 2, 3);
    HTREEITEM found = nullptr;
    EXPECT_TRUE(map.GetItemHandle(query, found));
    EXPECT_EQ(found, Item(1));
    // An offset of unknown type equals nothing, not even the stored copy.
    found = nullptr;
    EXPECT_FALSE(map.GetItemHandle(unknown, found));
    EXPECT_EQ(found, nullptr);
}

}  // namespace
}  // namespace vex
