// SPDX-License-Identifier: MIT
#include "unit/VQDraw/overlay/loading/RecordedMemory.h"

#include <cstdlib>
#include <new>

namespace {

constexpr std::size_t kMostEvents = 1 << 20;
vq::test::MemoryEvent g_events[kMostEvents];
std::size_t g_count = 0;
bool g_isRecording = false;
int g_untilFailure = -1; // below 0: none is to come
bool g_isFailing = false;

void note(void* block, bool isGiven)
{
    if (g_isRecording && block && g_count < kMostEvents)
        g_events[g_count++] = {block, isGiven};
}

bool mustFail()
{
    return g_isFailing && g_untilFailure-- == 0;
}

} // namespace

void vq::test::failMemoryAt(int number)
{
    g_untilFailure = number;
    g_isFailing = true;
}

bool vq::test::stopFailingMemory()
{
    g_isFailing = false;
    return g_untilFailure < 0;
}

void vq::test::startMemoryEvents()
{
    g_count = 0;
    g_isRecording = true;
}

std::span<const vq::test::MemoryEvent> vq::test::stopMemoryEvents()
{
    g_isRecording = false;
    return {g_events, g_count};
}

// The forms that do not throw, and those of arrays, end in the first two (C++ standard, [new.delete]); said here too,
// because AddressSanitizer brings all forms, each to itself.

[[gnu::visibility("default")]] void* operator new(std::size_t bytes)
{
    void* const block = mustFail() ? nullptr : std::malloc(bytes == 0 ? 1 : bytes);
    if (!block)
        throw std::bad_alloc();
    note(block, false);
    return block;
}

[[gnu::visibility("default")]] void operator delete(void* block) noexcept
{
    note(block, true);
    std::free(block);
}

[[gnu::visibility("default")]] void operator delete(void* block, std::size_t) noexcept
{
    ::operator delete(block);
}

[[gnu::visibility("default")]] void* operator new(std::size_t bytes, const std::nothrow_t&) noexcept
{
    try {
        return ::operator new(bytes);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

[[gnu::visibility("default")]] void operator delete(void* block, const std::nothrow_t&) noexcept
{
    ::operator delete(block);
}

[[gnu::visibility("default")]] void* operator new[](std::size_t bytes)
{
    return ::operator new(bytes);
}

[[gnu::visibility("default")]] void* operator new[](std::size_t bytes, const std::nothrow_t&) noexcept
{
    return ::operator new(bytes, std::nothrow);
}

[[gnu::visibility("default")]] void operator delete[](void* block) noexcept
{
    ::operator delete(block);
}

[[gnu::visibility("default")]] void operator delete[](void* block, std::size_t) noexcept
{
    ::operator delete(block);
}

[[gnu::visibility("default")]] void operator delete[](void* block, const std::nothrow_t&) noexcept
{
    ::operator delete(block);
}
