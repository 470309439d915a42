// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace vq::gdiplus {

/// Spreads a number over 64 bits (the finaliser of MurmurHash3).
constexpr std::size_t spread(std::size_t value)
{
    value = (value ^ value >> 33) * 0xFF51AFD7ED558CCDU;
    value = (value ^ value >> 33) * 0xC4CEB9FE1A85EC53U;
    return value ^ value >> 33;
}

/// Values by key within a budget; what was not asked for the longest leaves first.
///
/// `View` is what a key is looked up by: it has `hash`, computed once, and can be made from a key and compared with
/// one. A look-up and a hit take no memory. Values stay where they are until they leave.
template <typename Key, typename View, typename Value>
class LruCache
{
public:
    explicit LruCache(std::size_t budget) : m_budget(budget) {}
    LruCache(const LruCache&) = delete;
    LruCache& operator=(const LruCache&) = delete;
    ~LruCache()
    {
        while (m_newest)
            delete std::exchange(m_newest, m_newest->older);
    }

    /// The value of a key, which becomes the most recently used; null when it is not there.
    Value* find(const View& view)
    {
        if (m_buckets.empty())
            return nullptr;
        for (Entry* entry = bucketOf(view.hash); entry; entry = entry->chained) {
            if (entry->hash != view.hash || !(view == entry->key))
                continue;
            if (entry != m_newest) {
                unlink(*entry);
                linkAsNewest(*entry);
            }
            return &entry->value;
        }
        return nullptr;
    }

    /// Adds a value whose key is not there; others leave until all costs together are within the budget. The new one
    /// always stays.
    Value& insert(Key key, Value value, std::size_t cost)
    {
        auto added = std::make_unique<Entry>(std::move(key), std::move(value), cost);
        if (2 * m_size >= m_buckets.size())
            growBuckets();
        Entry& entry = *added.release();
        chain(entry);
        linkAsNewest(entry);
        ++m_size;
        m_cost += cost;
        while (m_cost > m_budget && m_size > 1)
            dropOldest();
        __builtin_prefetch(m_oldest); // the next to leave, which nobody has looked at for long
        return entry.value;
    }

    std::size_t size() const { return m_size; }
    std::size_t cost() const { return m_cost; }

private:
    struct Entry
    {
        Entry(Key&& ownKey, Value&& ownValue, std::size_t ownCost)
            : hash(View(ownKey).hash), cost(ownCost), key(std::move(ownKey)), value(std::move(ownValue))
        {
        }

        Entry* newer = nullptr;
        Entry* older = nullptr;
        Entry* chained = nullptr; // the next one in its bucket
        Entry** from = nullptr;   // what points to this one in its bucket
        std::size_t hash;
        std::size_t cost;
        Key key;
        Value value;
    };

    Entry*& bucketOf(std::size_t hash) { return m_buckets[hash & (m_buckets.size() - 1)]; }

    void chain(Entry& entry)
    {
        entry.from = &bucketOf(entry.hash);
        entry.chained = std::exchange(*entry.from, &entry);
        if (entry.chained)
            entry.chained->from = &entry.chained;
    }

    void unchain(Entry& entry)
    {
        *entry.from = entry.chained;
        if (entry.chained)
            entry.chained->from = entry.from;
    }

    void linkAsNewest(Entry& entry)
    {
        entry.newer = nullptr;
        entry.older = std::exchange(m_newest, &entry);
        (entry.older ? entry.older->newer : m_oldest) = &entry;
    }

    void unlink(Entry& entry)
    {
        (entry.newer ? entry.newer->older : m_newest) = entry.older;
        (entry.older ? entry.older->newer : m_oldest) = entry.newer;
    }

    /// To twice as many, a power of two.
    void growBuckets()
    {
        constexpr std::size_t kFewest = 16;
        std::vector<Entry*> buckets(std::max(2 * m_buckets.size(), kFewest));
        m_buckets.swap(buckets);
        for (Entry* entry = m_newest; entry; entry = entry->older)
            chain(*entry);
    }

    void dropOldest()
    {
        const std::unique_ptr<Entry> dropped(m_oldest);
        unchain(*dropped);
        unlink(*dropped);
        --m_size;
        m_cost -= dropped->cost;
    }

    std::vector<Entry*> m_buckets; // at least twice as many as there are entries: most hold one or none
    Entry* m_newest = nullptr;
    Entry* m_oldest = nullptr;
    std::size_t m_size = 0;
    std::size_t m_budget;
    std::size_t m_cost = 0;
};

} // namespace vq::gdiplus
