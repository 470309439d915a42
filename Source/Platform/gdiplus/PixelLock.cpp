// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/PixelStore.h"

#include <vector>

namespace vq::gdiplus {
namespace {

using Gdiplus::InvalidParameter;

constexpr UINT kKnownFlags =
    Gdiplus::ImageLockModeRead | Gdiplus::ImageLockModeWrite | Gdiplus::ImageLockModeUserInputBuf;

/// Whether the memory already is what was asked for.
bool canLockInPlace(const PixelStore& store, Layout layout)
{
    return store.layout == layout || (layout != Layout::Premultiplied && layout != Layout::Packed && store.memory &&
                                      store.layout == Layout::Opaque);
}

std::size_t paddedRowBytes(const Gdiplus::Rect& rect, Layout layout)
{
    const std::size_t bytes = static_cast<std::size_t>(rect.Width) * bytesPerPixel(layout);
    return (bytes + 3) / 4 * 4;
}

void readLocked(const PixelStore& store, const PixelLock& lock)
{
    std::vector<Pixel> row(static_cast<std::size_t>(lock.rect.Width));
    for (int y = 0; y < lock.rect.Height; ++y) {
        const std::uint8_t* from = store.at(lock.rect.X, lock.rect.Y + y);
        std::uint8_t* to = lock.top + y * lock.stride;
        if (store.layout == lock.layout) {
            std::memcpy(to, from, row.size() * bytesPerPixel(lock.layout));
            continue;
        }
        readRow(store.layout, from, row);
        writeRow(lock.layout, row, to);
    }
}

void writeLocked(const PixelStore& store, const PixelLock& lock)
{
    std::vector<Pixel> row(static_cast<std::size_t>(lock.rect.Width));
    for (int y = 0; y < lock.rect.Height; ++y) {
        const std::uint8_t* from = lock.top + y * lock.stride;
        std::uint8_t* to = store.at(lock.rect.X, lock.rect.Y + y);
        if (store.layout == lock.layout) {
            std::memcpy(to, from, row.size() * bytesPerPixel(lock.layout));
            continue;
        }
        readRow(lock.layout, from, row);
        writeRow(store.layout, row, to);
    }
}

/// Memory for the copy: the caller's, or our own.
Gdiplus::Status provideCopy(PixelLock& lock, UINT flags, const Gdiplus::BitmapData& data)
{
    if (flags & Gdiplus::ImageLockModeUserInputBuf) {
        if (!data.Scan0)
            return InvalidParameter;
        lock.top = static_cast<std::uint8_t*>(data.Scan0);
        lock.stride = data.Stride;
        return Gdiplus::Ok;
    }
    const std::size_t rowBytes = paddedRowBytes(lock.rect, lock.layout);
    lock.memory.reset(
        static_cast<std::uint8_t*>(platform::allocateZeroed(rowBytes * static_cast<std::size_t>(lock.rect.Height))));
    if (!lock.memory)
        return Gdiplus::OutOfMemory;
    lock.top = lock.memory.get();
    lock.stride = static_cast<std::ptrdiff_t>(rowBytes);
    return Gdiplus::Ok;
}

} // namespace

Gdiplus::Status lockPixels(PixelStore& store, const Gdiplus::Rect& rect, UINT flags, Gdiplus::PixelFormat format,
                           Gdiplus::BitmapData& data)
{
    const auto layout = layoutOf(format);
    if (!layout || (flags & ~kKnownFlags) || !liesInside(store, rect))
        return InvalidParameter;
    if (store.lock)
        return Gdiplus::WrongState;

    PixelLock lock{};
    lock.rect = rect;
    lock.layout = *layout;
    lock.writes = flags & Gdiplus::ImageLockModeWrite;
    lock.isDirect = canLockInPlace(store, *layout) && !(flags & Gdiplus::ImageLockModeUserInputBuf);
    if (lock.isDirect) {
        lock.top = store.at(rect.X, rect.Y);
        lock.stride = store.stride;
    } else {
        if (const auto status = provideCopy(lock, flags, data); status != Gdiplus::Ok)
            return status;
        if (flags & Gdiplus::ImageLockModeRead)
            readLocked(store, lock);
    }
    data = {static_cast<UINT>(rect.Width),
            static_cast<UINT>(rect.Height),
            static_cast<INT>(lock.stride),
            format,
            lock.top,
            0};
    store.lock = std::move(lock);
    return Gdiplus::Ok;
}

Gdiplus::Status unlockPixels(PixelStore& store)
{
    if (!store.lock)
        return Gdiplus::WrongState;
    const PixelLock lock = *std::exchange(store.lock, std::nullopt);
    if (!lock.writes)
        return Gdiplus::Ok;
    if (!lock.isDirect)
        writeLocked(store, lock);
    if (store.layout == Layout::Opaque && store.memory)
        makeOpaque(store.words(), lock.rect);
    return Gdiplus::Ok;
}

} // namespace vq::gdiplus
