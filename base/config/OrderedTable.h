// OrderedTable.h - internal: a hash table of texts to values that remembers
// the order in which keys were added. The sections of a configuration file
// and the items of a section are kept in one each. Installed only because
// FileObject holds one; not for use outside the library.
//
// Entries sit in one vector in the order of their keys' arrival, found
// through an open-addressing index of positions; lookup, insertion and
// deletion take constant time on average, and a table of 200,000 keys
// loads without a node allocation per key. Each key gets a sequence number
// that never changes (renaming keeps it), so a cursor that remembers the
// number of the entry it stands on stays usable whatever is added or
// deleted meanwhile. Pointers to entries last until the next insertion or
// deletion. Not thread-safe.
#pragma once

#include <base/framework/CString.h>

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace vex::detail {

template <class Value>
class OrderedTable {
  public:
    struct Entry {
        CString key;
        Value value{};
        std::size_t hash = 0;
        // One word for both: a table of 200,000 keys holds 1.6 MB less.
        std::uint64_t sequence : 63 = 0;
        std::uint64_t live : 1 = 1;
    };

    OrderedTable() = default;
    // Copies hold the live entries only, with their sequence numbers.
    OrderedTable(const OrderedTable& other) { CopyFrom(other); }
    OrderedTable& operator=(const OrderedTable& other) {
        if (this != &other) CopyFrom(other);
        return *this;
    }
    // A moved-from table is empty.
    OrderedTable(OrderedTable&& other) noexcept { Take(other); }
    OrderedTable& operator=(OrderedTable&& other) noexcept {
        if (this != &other) Take(other);
        return *this;
    }

    int Count() const { return static_cast<int>(m_entries.size() - m_deleted); }
    bool IsEmpty() const { return Count() == 0; }

    const Entry* FindEntry(std::u16string_view key) const {
        const std::size_t slot = FindSlot(key, Hash(key));
        return slot == kNone ? nullptr : &m_entries[PositionIn(m_index[slot])];
    }
    Entry* FindEntry(std::u16string_view key) {
        const std::size_t slot = FindSlot(key, Hash(key));
        return slot == kNone ? nullptr : &m_entries[PositionIn(m_index[slot])];
    }
    const Value* Find(std::u16string_view key) const {
        const Entry* entry = FindEntry(key);
        return entry ? &entry->value : nullptr;
    }

    // The entry of key, added at the end with a default value when missing.
    Entry& Insert(CString key) {
        const std::size_t hash = Hash(key.View());
        if (const std::size_t slot = FindSlot(key.View(), hash); slot != kNone) {
            return m_entries[PositionIn(m_index[slot])];
        }
        Grow(m_entries.size() + 1);
        m_entries.push_back(Entry{std::move(key), Value{}, hash, m_next++, 1});
        Place(hash, static_cast<std::uint32_t>(m_entries.size() - 1));
        return m_entries.back();
    }
    // Sets the value of key: in place, or added at the end.
    void Set(CString key, Value value) { Insert(std::move(key)).value = std::move(value); }

    // Removes key; false when it is not there.
    bool Erase(std::u16string_view key) {
        const std::size_t slot = FindSlot(key, Hash(key));
        if (slot == kNone) return false;
        Entry& entry = m_entries[PositionIn(m_index[slot])];
        entry.live = 0;
        entry.key = CString();
        entry.value = Value{};
        m_index[slot] = kTombstone;
        ++m_deleted;
        // Compacted once the gaps outnumber the entries: linear work for as
        // many deletions, so deleting everything stays linear.
        if (m_deleted > 16 && 2 * m_deleted > m_entries.size()) Rebuild(m_entries.size());
        return true;
    }

    // Gives the entry of oldKey the key newKey, in the same place. newKey
    // must not be in the table. False when oldKey is not there.
    bool Rename(std::u16string_view oldKey, CString newKey) {
        if (FindSlot(oldKey, Hash(oldKey)) == kNone) return false;
        Grow(m_entries.size() + 1);  // first: it may move the entries
        const std::size_t slot = FindSlot(oldKey, Hash(oldKey));
        const std::uint32_t position = PositionIn(m_index[slot]);
        m_index[slot] = kTombstone;
        Entry& entry = m_entries[position];
        entry.hash = Hash(newKey.View());
        entry.key = std::move(newKey);
        Place(entry.hash, position);
        return true;
    }

    void Clear() {
        m_entries.clear();
        m_index.clear();
        m_used = 0;
        m_deleted = 0;
    }

    // Room for count entries without moving the entries or growing the
    // index; a table filled to count then holds little unused room.
    void Reserve(std::size_t count) {
        if (NeedsRoom(count)) Rebuild(count);
        m_entries.reserve(count);
    }

    // Gives back the room that more entries than there are would need.
    void ShrinkToFit() {
        if (m_entries.capacity() > m_entries.size() + m_entries.size() / 8) {
            m_entries.shrink_to_fit();
        }
        if (m_index.size() > 16 && SlotsFor(m_entries.size()) < m_index.size()) {
            Rebuild(m_entries.size());
        }
    }

    // The first entry, or the first entry after the one numbered sequence;
    // null at the end.
    const Entry* First() const { return LiveFrom(0); }
    const Entry* After(std::uint64_t sequence) const {
        const auto at = std::upper_bound(
            m_entries.begin(), m_entries.end(), sequence,
            [](std::uint64_t s, const Entry& entry) { return s < entry.sequence; });
        return LiveFrom(static_cast<std::size_t>(at - m_entries.begin()));
    }

    // Calls f(key, value) for each entry in order; f must not add or delete.
    template <class F>
    void ForEach(F&& f) const {
        const std::size_t count = m_entries.size();
        for (std::size_t i = 0; i < count; ++i) {
            // The texts live in blocks of their own: asking for those of an
            // entry a few ahead hides most of the wait for memory when a
            // large table is written out.
            if (i + kAhead < count) Prefetch(m_entries[i + kAhead]);
            const Entry& entry = m_entries[i];
            if (entry.live) f(entry.key, entry.value);
        }
    }
    template <class F>
    void ForEach(F&& f) {
        for (Entry& entry : m_entries) {
            if (entry.live) f(std::as_const(entry.key), entry.value);
        }
    }

  private:
    static constexpr std::size_t kAhead = 4;
    static void Prefetch([[maybe_unused]] const Entry& entry) {
#if defined(__GNUC__) || defined(__clang__)
        __builtin_prefetch(entry.key.GetString());
        if constexpr (std::is_same_v<Value, CString>) __builtin_prefetch(entry.value.GetString());
#endif
    }

    // An index slot holds an entry's position in its low 32 bits and the
    // high bits of the key's hash in the others, so that most slots of
    // other keys are passed over without touching their entries.
    static constexpr std::uint64_t kEmpty = ~std::uint64_t{0};
    static constexpr std::uint64_t kTombstone = kEmpty - 1;
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

    static std::size_t Hash(std::u16string_view key) {
        return std::hash<std::u16string_view>{}(key);
    }
    static std::uint64_t Tag(std::size_t hash) {
        return (static_cast<std::uint64_t>(hash) >> 32) << 32;
    }
    static std::uint32_t PositionIn(std::uint64_t slot) {
        return static_cast<std::uint32_t>(slot);
    }

    // The index slot that holds key, or kNone.
    std::size_t FindSlot(std::u16string_view key, std::size_t hash) const {
        if (m_index.empty()) return kNone;
        const std::size_t mask = m_index.size() - 1;
        const std::uint64_t tag = Tag(hash);
        for (std::size_t slot = hash & mask;; slot = (slot + 1) & mask) {
            const std::uint64_t held = m_index[slot];
            if (held == kEmpty) return kNone;
            if (held != kTombstone && (held & ~std::uint64_t{0xFFFFFFFFu}) == tag) {
                const Entry& entry = m_entries[PositionIn(held)];
                if (entry.hash == hash && entry.key.View() == key) return slot;
            }
        }
    }

    // Puts a position into the first free slot of its probe sequence.
    void Place(std::size_t hash, std::uint32_t position) {
        const std::size_t mask = m_index.size() - 1;
        std::size_t slot = hash & mask;
        while (m_index[slot] != kEmpty)
            slot = (slot + 1) & mask;
        m_index[slot] = Tag(hash) | position;
        ++m_used;
    }

    // The index is filled to at most seven eighths: with the hash tags in
    // the slots, the longer probe runs cost little, and the index of a
    // large file stays small.
    static std::size_t SlotsFor(std::size_t count) {
        return std::max<std::size_t>(16, std::bit_ceil(count + count / 7 + 2));
    }
    bool NeedsRoom(std::size_t count) const {
        return 8 * (std::max(m_used, count) + 1) > 7 * m_index.size();
    }
    // Room for count entries, growing by doubling so that adding one entry
    // at a time takes linear time.
    void Grow(std::size_t count) {
        if (NeedsRoom(count)) Rebuild(std::max(count, 2 * m_entries.size()));
    }

    // Drops deleted entries and builds an index for count entries.
    void Rebuild(std::size_t count) {
        if (m_deleted > 0) {
            std::erase_if(m_entries, [](const Entry& entry) { return !entry.live; });
            m_deleted = 0;
        }
        m_index.assign(SlotsFor(std::max(count, m_entries.size())), kEmpty);
        m_used = 0;
        for (std::size_t i = 0; i < m_entries.size(); ++i)
            Place(m_entries[i].hash, static_cast<std::uint32_t>(i));
    }

    const Entry* LiveFrom(std::size_t index) const {
        while (index < m_entries.size() && !m_entries[index].live)
            ++index;
        return index < m_entries.size() ? &m_entries[index] : nullptr;
    }

    void Take(OrderedTable& other) noexcept {
        m_entries = std::move(other.m_entries);
        m_index = std::move(other.m_index);
        m_used = std::exchange(other.m_used, 0);
        m_deleted = std::exchange(other.m_deleted, 0);
        m_next = other.m_next;
        other.m_entries.clear();
        other.m_index.clear();
    }

    void CopyFrom(const OrderedTable& other) {
        std::vector<Entry> entries;
        entries.reserve(static_cast<std::size_t>(other.Count()));
        for (const Entry& entry : other.m_entries) {
            if (entry.live) entries.push_back(entry);
        }
        m_entries = std::move(entries);
        m_deleted = 0;
        m_next = other.m_next;
        m_index.clear();
        Rebuild(m_entries.size());
    }

    std::vector<Entry> m_entries;  // ascending sequence numbers; dead ones kept until compacted
    std::vector<std::uint64_t> m_index;  // tags and positions; size a power of two
    std::size_t m_used = 0;              // index slots not empty (entries and tombstones)
    std::size_t m_deleted = 0;           // dead entries in m_entries
    std::uint64_t m_next = 0;
};

}  // namespace vex::detail
