// CMap.h - CMap<K, V>, the framework's hash map with POSITION iteration.
//
// A chained hash table that starts with 17 buckets and doubles (to the next
// odd size) whenever the entries outnumber the buckets, so lookups stay
// short however many entries are added. Iteration visits the buckets in
// order and, within a bucket, the newest entry first; that order is stable
// while the map is not changed, and a table that grows reorders it. Keys
// are hashed with vex::HashKey (pointers, integers and enums built in;
// other keys through std::hash) and compared with ==. Copies are
// independent and iterate in the same order. Not thread-safe.
//
//   vex::CMap<int, double> depthByLine;
//   depthByLine[3] = 12.5;
//   double d = 0;
//   if (depthByLine.Lookup(3, d)) { ... }                  // d == 12.5
//   for (vex::POSITION p = depthByLine.GetStartPosition(); p != nullptr;)
//       depthByLine.GetNextAssoc(p, key, value);
#pragma once

#include <base/framework/Position.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

namespace vex {

// The hash of a map key. Pointers and integers are mixed (pointers are
// aligned, so their low bits alone would crowd a few buckets).
template <class K>
unsigned int HashKey(const K& key) {
    if constexpr (std::is_pointer_v<K> || std::is_integral_v<K> || std::is_enum_v<K>) {
        std::uint64_t bits = 0;
        if constexpr (std::is_pointer_v<K>) {
            bits = reinterpret_cast<std::uintptr_t>(key);
        } else {
            bits = static_cast<std::uint64_t>(key);
        }
        // The finaliser of SplitMix64: every input bit moves every output bit.
        bits ^= bits >> 30;
        bits *= 0xBF58476D1CE4E5B9ull;
        bits ^= bits >> 27;
        bits *= 0x94D049BB133111EBull;
        bits ^= bits >> 31;
        return static_cast<unsigned int>(bits);
    } else {
        return static_cast<unsigned int>(std::hash<K>{}(key));
    }
}

template <class K, class V>
class CMap {
  public:
    // The framework's table size; the table grows from it as entries are added.
    static constexpr int DEFAULT_HASH_TABLE_SIZE = 17;

    // blockSize is the framework's allocation step for entries; entries are
    // allocated one by one here, so it is kept only for GetBlockSize.
    explicit CMap(int blockSize = 10) : blockSize_(blockSize) {}
    CMap(const CMap& other) : blockSize_(other.blockSize_) { CopyFrom(other); }
    CMap(CMap&& other) noexcept
        : buckets_(std::move(other.buckets_)), count_(other.count_), blockSize_(other.blockSize_) {
        other.count_ = 0;
    }
    CMap& operator=(const CMap& other) {
        if (this != &other) {
            CMap copy(other);
            Swap(copy);
        }
        return *this;
    }
    CMap& operator=(CMap&& other) noexcept {
        if (this != &other) {
            RemoveAll();
            Swap(other);
        }
        return *this;
    }
    virtual ~CMap() { RemoveAll(); }

    int GetCount() const { return static_cast<int>(count_); }
    int GetSize() const { return GetCount(); }
    bool IsEmpty() const { return count_ == 0; }
    // The number of buckets: 0 before the first entry, then 17 or more.
    int GetHashTableSize() const { return static_cast<int>(buckets_.size()); }
    int GetBlockSize() const { return blockSize_; }
    // Sets the number of buckets (at least 1) and rehashes the entries.
    void InitHashTable(int size) { Rehash(size < 1 ? 1u : static_cast<std::size_t>(size)); }

    // True, with value set, when key is in the map; value unchanged otherwise.
    bool Lookup(const K& key, V& value) const {
        const Node* node = Find(key);
        if (node == nullptr) return false;
        value = node->value;
        return true;
    }
    // The value of key, added with a default value when key is new.
    V& operator[](const K& key) {
        if (Node* node = Find(key)) return node->value;
        if (buckets_.empty()) Rehash(DEFAULT_HASH_TABLE_SIZE);
        if (count_ >= buckets_.size()) Rehash(2 * buckets_.size() + 1);
        const unsigned int hash = HashKey(key);
        auto node = std::make_unique<Node>(key, hash);
        auto& head = buckets_[hash % buckets_.size()];
        node->next = std::move(head);
        head = std::move(node);
        ++count_;
        return head->value;
    }
    // Adds key with value, or replaces the value of a key already there.
    void SetAt(const K& key, const V& value) { (*this)[key] = value; }
    // Removes key; false when it was not there.
    bool RemoveKey(const K& key) {
        if (buckets_.empty()) return false;
        std::unique_ptr<Node>* link = &buckets_[HashKey(key) % buckets_.size()];
        while (*link != nullptr && !((*link)->key == key)) {
            link = &(*link)->next;
        }
        if (*link == nullptr) return false;
        *link = std::move((*link)->next);
        --count_;
        return true;
    }
    // Removes every entry and gives the table back.
    void RemoveAll() {
        // Unlinked one by one: a long chain freed by its head would recurse
        // once per node.
        for (auto& head : buckets_) {
            while (head != nullptr)
                head = std::move(head->next);
        }
        buckets_.clear();
        count_ = 0;
    }

    // The position of the first entry; null when the map is empty.
    POSITION GetStartPosition() const { return ToPosition(FirstFrom(0)); }
    // Copies out the entry at position and moves position to the next one
    // (null after the last). Removing the entry just returned is safe.
    void GetNextAssoc(POSITION& position, K& key, V& value) const {
        const Node* node = FromPosition(position);
        if (node == nullptr) return;
        key = node->key;
        value = node->value;
        const Node* next = node->next.get();
        if (next == nullptr) next = FirstFrom(node->hash % buckets_.size() + 1);
        position = ToPosition(next);
    }

  private:
    struct Node {
        Node(const K& k, unsigned int h) : key(k), value(), hash(h) {}
        K key;
        V value;
        unsigned int hash;  // kept so that iteration and rehashing need not hash again
        std::unique_ptr<Node> next;
    };

    static POSITION ToPosition(const Node* node) {
        return reinterpret_cast<POSITION>(const_cast<Node*>(node));
    }
    static const Node* FromPosition(POSITION position) {
        return reinterpret_cast<const Node*>(position);
    }

    Node* Find(const K& key) const {
        if (buckets_.empty()) return nullptr;
        for (Node* node = buckets_[HashKey(key) % buckets_.size()].get(); node != nullptr;
             node = node->next.get()) {
            if (node->key == key) return node;
        }
        return nullptr;
    }

    const Node* FirstFrom(std::size_t bucket) const {
        for (; bucket < buckets_.size(); ++bucket) {
            if (buckets_[bucket] != nullptr) return buckets_[bucket].get();
        }
        return nullptr;
    }

    // Moves every node into a table of size buckets; nodes are relinked, not copied.
    void Rehash(std::size_t size) {
        std::vector<std::unique_ptr<Node>> table(size);
        for (auto& head : buckets_) {
            while (head != nullptr) {
                std::unique_ptr<Node> node = std::move(head);
                head = std::move(node->next);
                auto& target = table[node->hash % size];
                node->next = std::move(target);
                target = std::move(node);
            }
        }
        buckets_.swap(table);
    }

    // Same buckets and the same order within each, so a copy iterates alike.
    void CopyFrom(const CMap& other) {
        buckets_.resize(other.buckets_.size());
        for (std::size_t b = 0; b < other.buckets_.size(); ++b) {
            std::unique_ptr<Node>* tail = &buckets_[b];
            for (const Node* node = other.buckets_[b].get(); node != nullptr;
                 node = node->next.get()) {
                *tail = std::make_unique<Node>(node->key, node->hash);
                (*tail)->value = node->value;
                tail = &(*tail)->next;
            }
        }
        count_ = other.count_;
    }

    void Swap(CMap& other) noexcept {
        buckets_.swap(other.buckets_);
        std::swap(count_, other.count_);
        std::swap(blockSize_, other.blockSize_);
    }

    std::vector<std::unique_ptr<Node>> buckets_;
    std::size_t count_ = 0;
    int blockSize_;
};

}  // namespace vex
