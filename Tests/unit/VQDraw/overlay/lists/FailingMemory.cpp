// SPDX-License-Identifier: MIT
#include "unit/VQDraw/overlay/lists/FailingMemory.h"

#include <atomic>
#include <cstddef>
#include <new>

namespace {

constinit std::atomic<bool> isActive = false;
constinit std::atomic<int> g_asked = 0;
constinit int firstFailure = 0;
constinit int failures = 0;

bool mustFail()
{
    if (!isActive)
        return false;
    const int number = g_asked++;
    return number >= firstFailure && number - firstFailure < failures;
}

} // namespace

void* operator new[](std::size_t bytes, const std::nothrow_t&) noexcept
{
    if (mustFail())
        return nullptr;
    try {
        return ::operator new[](bytes);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

namespace vq::test {

FailingMemory::FailingMemory(int first, int count)
{
    g_asked = 0;
    firstFailure = first;
    failures = count;
    isActive = true;
}

FailingMemory::~FailingMemory()
{
    isActive = false;
}

int FailingMemory::asked()
{
    return g_asked;
}

} // namespace vq::test
