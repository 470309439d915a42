// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// What stands before and around every call of the interface.

#include "Platform/gdiplus/Types.h"

#include <new>

namespace vq::gdiplus {

/// Whether more start-ups than shut-downs have happened.
bool isStarted() noexcept;

/// Runs the work of a call. No exception leaves the interface: memory that cannot be had becomes a status.
template <typename Work>
Gdiplus::Status guarded(Work&& work) noexcept
{
    if (!isStarted())
        return Gdiplus::GdiplusNotInitialized;
    try {
        return work();
    } catch (const std::bad_alloc&) {
        return Gdiplus::OutOfMemory;
    } catch (...) {
        return Gdiplus::GenericError;
    }
}

} // namespace vq::gdiplus
