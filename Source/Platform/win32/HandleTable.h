// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Numbers that stand for objects. Internal to this folder.

#include <cstddef>
#include <cstdint>
#include <new>
#include <vector>

namespace vq::win32 {

/// Gives out a number for an object and finds the object again. Numbers come from outside, so that every one is
/// checked; a place in the table that is used again gets another number, and an old one finds nothing. The caller locks
/// and owns the objects.
///
/// The destructor does nothing: a table is a static object, and calls that come after `close` (from other static
/// objects) meet an empty table instead of a destroyed one.
template <typename Object>
class HandleTable
{
public:
    /// 0 when memory or numbers run out, and after `close`.
    std::uintptr_t insert(Object* object) noexcept
    {
        if (m_closed || !reserveFreeSlot())
            return 0;
        const std::size_t index = m_firstFree;
        Slot& slot = (*m_slots)[index];
        m_firstFree = slot.nextFree;
        slot.object = object;
        return numberOf(index, slot);
    }

    /// Null for a number that stands for nothing.
    Object* find(std::uintptr_t number) const noexcept
    {
        const Slot* slot = slotOf(number);
        return slot ? slot->object : nullptr;
    }

    Object* remove(std::uintptr_t number) noexcept
    {
        Slot* slot = slotOf(number);
        if (!slot)
            return nullptr;
        Object* object = slot->object;
        slot->object = nullptr;
        slot->nextFree = m_firstFree;
        ++slot->generation;
        m_firstFree = indexOf(number);
        return object;
    }

    /// Calls `action(number, object)` until it returns true; says whether it did.
    template <typename Action>
    bool findIf(Action action) const
    {
        for (std::size_t index = 0; m_slots && index < m_slots->size(); ++index) {
            const Slot& slot = (*m_slots)[index];
            if (slot.object && action(numberOf(index, slot), slot.object))
                return true;
        }
        return false;
    }

    /// Frees the table, not the objects.
    void close() noexcept
    {
        delete m_slots;
        m_slots = nullptr;
        m_closed = true;
    }

private:
    // A number is, from the low bits: 4 bits that tell it from an address of a memory block (those are 0 there), 20
    // bits for the place, the rest for how often the place was used before, plus 1.
    static constexpr std::uintptr_t kMark = 0x2;
    static constexpr int kMarkBits = 4;
    static constexpr int kIndexBits = 20;
    static constexpr std::size_t kMostSlots = std::size_t{1} << kIndexBits;
    static constexpr std::size_t kNone = kMostSlots;

    struct Slot
    {
        Object* object = nullptr;
        std::uintptr_t generation = 1;
        std::size_t nextFree = kNone;
    };

    static std::size_t indexOf(std::uintptr_t number) { return number >> kMarkBits & (kMostSlots - 1); }

    static std::uintptr_t numberOf(std::size_t index, const Slot& slot)
    {
        return slot.generation << (kIndexBits + kMarkBits) | index << kMarkBits | kMark;
    }

    Slot* slotOf(std::uintptr_t number) const
    {
        const std::size_t index = indexOf(number);
        if (!m_slots || index >= m_slots->size())
            return nullptr;
        Slot& slot = (*m_slots)[index];
        return slot.object && numberOf(index, slot) == number ? &slot : nullptr;
    }

    bool reserveFreeSlot() noexcept
    {
        if (m_firstFree != kNone)
            return true;
        try {
            if (!m_slots)
                m_slots = new std::vector<Slot>;
            if (m_slots->size() == kMostSlots)
                return false;
            m_slots->emplace_back();
            m_firstFree = m_slots->size() - 1;
            return true;
        } catch (const std::bad_alloc&) {
            return false;
        }
    }

    std::vector<Slot>* m_slots = nullptr;
    std::size_t m_firstFree = kNone;
    bool m_closed = false;
};

} // namespace vq::win32
