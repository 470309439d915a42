// SPDX-License-Identifier: MIT
#pragma once

#include "support/ImageAccess.h"

#include <atomic>
#include <chrono>
#include <functional>
#include <thread>

namespace vq::test {

/// Runs `work` in another thread while this one holds the lock; true when it is done within `patience`.
inline bool finishesWhileLocked(CCriticalSection& lock, std::chrono::milliseconds patience,
                                const std::function<void()>& work)
{
    std::atomic<bool> done{false};
    lock.Lock();
    std::thread worker([&] {
        work();
        done = true;
    });
    const auto end = std::chrono::steady_clock::now() + patience;
    while (!done && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    const bool finished = done;
    lock.Unlock();
    worker.join();
    return finished;
}

inline bool waitsForTheLock(CCriticalSection& lock, const std::function<void()>& work)
{
    return !finishesWhileLocked(lock, std::chrono::milliseconds(50), work);
}

/// The same with the images' lock.
inline bool finishesWhileLocked(std::chrono::milliseconds patience, const std::function<void()>& work)
{
    return finishesWhileLocked(VQTestAccess::lock(), patience, work);
}

inline bool waitsForTheLock(const std::function<void()>& work)
{
    return waitsForTheLock(VQTestAccess::lock(), work);
}

} // namespace vq::test
