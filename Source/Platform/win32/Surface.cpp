// SPDX-License-Identifier: MIT
#include "Platform/win32/Surface.h"

#include "Platform/win32/BitmapObject.h"
#include "Platform/win32/ContextObject.h"
#include "Platform/win32/Errors.h"

#include <new>

namespace vq::win32 {

std::optional<Surface> surfaceOf(HDC context)
{
    std::unique_lock lock(gdiLock);
    const auto object = find<Context>(context);
    auto canvas = object ? object->canvas() : std::nullopt;
    lock.unlock();
    if (!canvas)
        return std::nullopt;
    if (!canvas->open({0, canvas->surface.height}))
        throw std::bad_alloc();
    return canvas->surface;
}

std::optional<Surface> surfaceOf(HBITMAP bitmap)
{
    const std::scoped_lock lock(gdiLock);
    const auto object = find<Bitmap>(bitmap);
    return object ? object->surface() : std::nullopt;
}

HDC createSurfaceContext(const Surface& surface)
{
    if (!surface.top || surface.width <= 0 || surface.height <= 0) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    const std::scoped_lock lock(gdiLock);
    const auto context = createContext(Context::Target::ForeignMemory);
    if (!context)
        return nullptr;
    context->foreignSurface = surface;
    return static_cast<HDC>(context->handle);
}

} // namespace vq::win32
