// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <iterator>
#include <list>
#include <unordered_set>
#include <utility>

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

    /// The value of a key, which becomes the most recently used; null when it is not there.
    Value* find(const View& view)
    {
        const auto found = m_index.find(view);
        if (found == m_index.end())
            return nullptr;
        const Position position = *found;
        if (position != m_entries.begin())
            m_entries.splice(m_entries.begin(), m_entries, position);
        return &position->value;
    }

    /// Adds a value whose key is not there; others leave until all costs together are within the budget. The new one
    /// always stays.
    Value& insert(Key key, Value value, std::size_t cost)
    {
        m_entries.emplace_front(std::move(key), std::move(value), cost);
        try {
            m_index.insert(m_entries.begin());
        } catch (...) {
            m_entries.pop_front();
            throw;
        }
        m_cost += cost;
        while (m_cost > m_budget && m_entries.size() > 1)
            dropLast();
        return m_entries.front().value;
    }

    std::size_t size() const { return m_entries.size(); }
    std::size_t cost() const { return m_cost; }

private:
    struct Entry
    {
        Entry(Key&& ownKey, Value&& ownValue, std::size_t ownCost)
            : key(std::move(ownKey)), value(std::move(ownValue)), cost(ownCost), hash(View(key).hash)
        {
        }

        Key key;
        Value value;
        std::size_t cost;
        std::size_t hash;
    };
    using Position = typename std::list<Entry>::iterator;

    struct Hash
    {
        using is_transparent = void;
        std::size_t operator()(const View& view) const noexcept { return view.hash; }
        std::size_t operator()(Position position) const noexcept { return position->hash; }
    };
    struct Equal
    {
        using is_transparent = void;
        bool operator()(Position a, Position b) const noexcept { return a == b; }
        bool operator()(const View& view, Position position) const noexcept
        {
            return view.hash == position->hash && view == position->key;
        }
        bool operator()(Position position, const View& view) const noexcept { return (*this)(view, position); }
    };

    void dropLast()
    {
        m_cost -= m_entries.back().cost;
        m_index.erase(std::prev(m_entries.end()));
        m_entries.pop_back();
    }

    std::list<Entry> m_entries; // the most recently used first
    std::unordered_set<Position, Hash, Equal> m_index;
    std::size_t m_budget;
    std::size_t m_cost = 0;
};

} // namespace vq::gdiplus
