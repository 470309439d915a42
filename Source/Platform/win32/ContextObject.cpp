// SPDX-License-Identifier: MIT
#include "Platform/win32/ContextObject.h"

#include "Platform/win32/BitmapObject.h"
#include "Platform/win32/Desktop.h"
#include "Platform/win32/StockObjects.h"

namespace vq::win32 {
namespace {

std::optional<Canvas> canvasOver(const std::optional<Surface>& surface, std::shared_ptr<const GdiObject> owner)
{
    if (!surface)
        return std::nullopt;
    return Canvas{*surface, std::move(owner)};
}

} // namespace

std::shared_ptr<GdiObject>* Context::slot(DWORD objectType)
{
    switch (objectType) {
    case OBJ_BITMAP:
        return target == Target::Memory ? &bitmap : nullptr;
    case OBJ_FONT:
        return &font;
    case OBJ_BRUSH:
        return &brush;
    case OBJ_PEN:
        return &pen;
    default:
        return nullptr;
    }
}

void Context::freeBitmap()
{
    static_cast<Bitmap&>(*bitmap).selectedInto = nullptr;
}

std::optional<Canvas> Context::canvas() const
{
    switch (target) {
    case Target::Memory:
        return canvasOver(static_cast<const Bitmap&>(*bitmap).surface(), bitmap);
    case Target::ForeignMemory:
        return canvasOver(foreignSurface, nullptr);
    case Target::Screen:
        return canvasOver(desktopSurface(), nullptr);
    }
    return std::nullopt;
}

std::shared_ptr<Context> createContext(Context::Target target)
{
    auto context = tryMake<Context>(target);
    if (!context)
        return nullptr;
    context->bitmap = stockObject(kDefaultBitmap);
    context->font = stockObject(SYSTEM_FONT);
    context->brush = stockObject(WHITE_BRUSH);
    context->pen = stockObject(BLACK_PEN);
    const bool complete = context->bitmap && context->font && context->brush && context->pen;
    return complete && publish(context) ? context : nullptr;
}

} // namespace vq::win32
