// SPDX-License-Identifier: MIT
#include "Platform/win32/Surface.h"

#include "Platform/win32/BitmapObject.h"
#include "Platform/win32/ContextObject.h"
#include "Platform/win32/Errors.h"

namespace vq::win32 {

std::optional<Surface> surfaceOf(HDC context)
{
    const std::scoped_lock lock(gdiLock);
    const auto object = find<Context>(context);
    const auto canvas = object ? object->canvas() : std::nullopt;
    return canvas ? std::optional(canvas->surface) : std::nullopt;
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
