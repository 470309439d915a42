// SPDX-License-Identifier: MIT
#include "Platform/win32/Desktop.h"

#include "Platform/PixelMemory.h"
#include "Platform/win32/GdiTable.h"

#include <utility>

namespace vq::win32 {
namespace {

constexpr std::ptrdiff_t kStride = std::ptrdiff_t{kDesktopWidth} * 4;

constinit BYTE* pixels = nullptr;
constinit bool closed = false;

struct ReleaseAtUnload
{
    ~ReleaseAtUnload()
    {
        const std::scoped_lock lock(gdiLock);
        closed = true;
        vq::platform::release(std::exchange(pixels, nullptr));
    }
};
VQ_START_ORDER(1) constinit ReleaseAtUnload releaseAtUnload;

} // namespace

std::optional<Surface> desktopSurface()
{
    if (!pixels && !closed)
        pixels = static_cast<BYTE*>(vq::platform::allocateZeroed(std::size_t{kStride} * kDesktopHeight));
    if (!pixels)
        return std::nullopt;
    return Surface{pixels, kStride, kDesktopWidth, kDesktopHeight};
}

} // namespace vq::win32
