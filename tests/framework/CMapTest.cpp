#include <base/framework/CMap.h>

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <utility>
#include <vector>

namespace vex {
namespace {

template <class K, class V>
std::vector<std::pair<K, V>> Iterate(const CMap<K, V>& map) {
    std::vector<std::pair<K, V>> entries;
    K key{};
    V value{};
    for (POSITION pos = map.GetStartPosition(); pos != nullptr;) {
        map.GetNextAssoc(pos, key, value);
        entries.emplace_back(key, value);
    }
    return entries;
}

TEST(CMap, StartsWithSeventeenBucketsAndGrowsWithItsEntries) {
    CMap<int, int> map;
    EXPECT_EQ(map.GetStartPosition(), nullptr);
    map[1] = 1;
    EXPECT_EQ(map.GetHashTableSize(), 17);
    for (int i = 2; i <= 17; ++i)
        map[i] = i;
    EXPECT_EQ(map.GetHashTableSize(), 17);
    map[18] = 18;
    EXPECT_GT(map.GetHashTableSize(), 17);
    for (int i = 19; i <= 5000; ++i)
        map.SetAt(i, i);
    // Chains stay short: never more entries than buckets.
    EXPECT_GE(map.GetHashTableSize(), map.GetCount());
}

// Checked against std::map over a random mix of additions, replacements
// and removals, through several growths of the table.
TEST(CMap, BehavesAsAMapUnderRandomChanges) {
    std::mt19937 random(12);
    std::uniform_int_distribution<int> keyOf(0, 3000);
    CMap<int, int> map;
    std::map<int, int> expected;
    for (int step = 0; step < 20000; ++step) {
        const int key = keyOf(random);
        if (random() % 3 == 0) {
            EXPECT_EQ(map.RemoveKey(key), expected.erase(key) == 1);
        } else {
            map.SetAt(key, step);
            expected[key] = step;
        }
    }
    EXPECT_EQ(map.GetCount(), static_cast<int>(expected.size()));
    const auto entries = Iterate(map);
    EXPECT_EQ((std::map<int, int>(entries.begin(), entries.end())), expected);
    EXPECT_EQ(entries.size(), expected.size());  // each entry visited once
    for (const auto& [key, value] : expected) {
        int found = -1;
        EXPECT_TRUE(map.Lookup(key, found));
        EXPECT_EQ(found, value);
    }
    int untouched = 42;
    EXPECT_FALSE(map.Lookup(-5, untouched));
    EXPECT_EQ(untouched, 42);
}

TEST(CMap, CopiesIterateAlikeAndStayIndependent) {
    CMap<const void*, int> map;
    static int cells[100];
    for (int i = 0; i < 100; ++i)
        map[&cells[i]] = i;
    CMap<const void*, int> copy(map);
    EXPECT_EQ(Iterate(copy), Iterate(map));
    copy[&cells[0]] = -1;
    copy.RemoveKey(&cells[1]);
    int value = 0;
    EXPECT_TRUE(map.Lookup(&cells[0], value));
    EXPECT_EQ(value, 0);
    EXPECT_TRUE(map.Lookup(&cells[1], value));
    map = std::move(copy);
    EXPECT_EQ(map.GetCount(), 99);
}

TEST(CMap, RemovingTheEntryJustVisitedKeepsTheWalkGoing) {
    CMap<int, int> map;
    for (int i = 0; i < 200; ++i)
        map[i] = i;
    int visited = 0, key = 0, value = 0;
    for (POSITION pos = map.GetStartPosition(); pos != nullptr;) {
        map.GetNextAssoc(pos, key, value);
        ++visited;
        if (key % 2 == 0) map.RemoveKey(key);
    }
    EXPECT_EQ(visited, 200);
    EXPECT_EQ(map.GetCount(), 100);
    // operator[] of a missing key adds a default value.
    EXPECT_EQ(map[0], 0);
    EXPECT_EQ(map.GetCount(), 101);
}

}  // namespace
}  // namespace vex
