// SPDX-License-Identifier: MIT
#include "unit/Platform/gdiplus/frames/HeapUse.h"

#include <execinfo.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <span>

namespace vq::test {

namespace {

std::atomic<bool> g_watching = false;
std::atomic<long> g_taken = 0;
std::atomic<long> g_given = 0;
HeapUse g_use;

void noteTaken()
{
    if (!g_watching)
        return;
    const auto index = static_cast<std::size_t>(g_taken++);
    thread_local bool within = false; // the walker of stacks may take memory itself
    if (within || index >= g_use.stacks.size())
        return;
    within = true;
    HeapUse::Stack& stack = g_use.stacks[index];
    stack.depth = backtrace(stack.calls.data(), static_cast<int>(stack.calls.size()));
    within = false;
}

void noteGiven()
{
    if (g_watching)
        ++g_given;
}

} // namespace

void startHeapUse()
{
    void* call = nullptr;
    backtrace(&call, 1); // loads what it needs
    g_use = {};
    g_taken = 0;
    g_given = 0;
    g_watching = true;
}

HeapUse stopHeapUse()
{
    g_watching = false;
    g_use.taken = g_taken;
    g_use.kept = g_taken - g_given;
    return g_use;
}

std::ostream& operator<<(std::ostream& out, const HeapUse& use)
{
    out << use.taken << " blocks taken, " << use.kept << " kept";
    const auto known = std::min(static_cast<std::size_t>(use.taken), use.stacks.size());
    for (const HeapUse::Stack& stack : std::span(use.stacks).first(known)) {
        const std::unique_ptr<char*, decltype(&std::free)> names(backtrace_symbols(stack.calls.data(), stack.depth),
                                                                 std::free);
        out << "\n  one by";
        for (int i = 2; names && i < stack.depth; ++i) // without the two that count
            out << "\n    " << names.get()[i];
    }
    return out;
}

} // namespace vq::test

#if defined(__SANITIZE_ADDRESS__)

// The sanitizer stands before the allocator already, and tells. (Declared by compiler-rt; GCC 12 has no header for it.)
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*taken)(const volatile void*, std::size_t),
                                                         void (*given)(const volatile void*));

namespace {
[[maybe_unused]] const int kHooked =
    __sanitizer_install_malloc_and_free_hooks([](const volatile void*, std::size_t) { vq::test::noteTaken(); },
                                              [](const volatile void*) { vq::test::noteGiven(); });
} // namespace

#else

// The program's definitions come before the C library's for all libraries of the process (glibc manual, "Replacing
// malloc"); those are reached by their inner names.
extern "C" {

void* __libc_malloc(std::size_t bytes) noexcept;
void* __libc_calloc(std::size_t count, std::size_t bytes) noexcept;
void* __libc_realloc(void* block, std::size_t bytes) noexcept;
void* __libc_memalign(std::size_t alignment, std::size_t bytes) noexcept;
void __libc_free(void* block) noexcept;

[[gnu::visibility("default")]] void* malloc(std::size_t bytes) noexcept
{
    vq::test::noteTaken();
    return __libc_malloc(bytes);
}

[[gnu::visibility("default")]] void* calloc(std::size_t count, std::size_t bytes) noexcept
{
    vq::test::noteTaken();
    return __libc_calloc(count, bytes);
}

[[gnu::visibility("default")]] void* realloc(void* block, std::size_t bytes) noexcept
{
    vq::test::noteTaken();
    if (block)
        vq::test::noteGiven();
    return __libc_realloc(block, bytes);
}

[[gnu::visibility("default")]] void* aligned_alloc(std::size_t alignment, std::size_t bytes) noexcept
{
    vq::test::noteTaken();
    return __libc_memalign(alignment, bytes);
}

[[gnu::visibility("default")]] void* memalign(std::size_t alignment, std::size_t bytes) noexcept
{
    return aligned_alloc(alignment, bytes);
}

[[gnu::visibility("default")]] int posix_memalign(void** block, std::size_t alignment, std::size_t bytes) noexcept
{
    *block = aligned_alloc(alignment, bytes);
    return *block ? 0 : ENOMEM;
}

[[gnu::visibility("default")]] void free(void* block) noexcept
{
    if (block)
        vq::test::noteGiven();
    __libc_free(block);
}

} // extern "C"

#endif
