// SPDX-License-Identifier: MIT
#include "Platform/win32/ContextObject.h"

#include "Platform/win32/BitmapObject.h"
#include "Platform/win32/Desktop.h"
#include "Platform/win32/Errors.h"
#include "Platform/win32/StockObjects.h"

namespace vq::win32 {
namespace {

std::optional<Canvas> canvasOver(const std::optional<Surface>& surface, std::shared_ptr<const GdiObject> owner)
{
    if (!surface)
        return std::nullopt;
    return Canvas{*surface, std::move(owner), nullptr};
}

} // namespace

bool Canvas::open(RowSpan rows)
{
    if (!blank)
        return true;
    const auto opened = blank->open(rows);
    if (!opened) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return false;
    }
    surface = *opened;
    return true;
}

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

void Context::deselectAll()
{
    for (auto* selected : {&bitmap, &font, &brush, &pen})
        selected->reset();
}

std::optional<Canvas> Context::canvas() const
{
    switch (target) {
    case Target::Memory:
        return canvasOver(static_cast<const Bitmap&>(*bitmap).surface(), bitmap);
    case Target::ForeignMemory:
        return canvasOver(foreignSurface, nullptr);
    case Target::BlankPicture:
        return Canvas{{nullptr, 0, blank->width(), blank->height()}, nullptr, blank};
    case Target::Screen:
        return canvasOver(desktopSurface(), nullptr);
    }
    return std::nullopt;
}

std::shared_ptr<Context> createContext(Context::Target target)
{
    auto context = tryMake<Context>(target);
    return context && openContext(context) ? context : nullptr;
}

bool openContext(const std::shared_ptr<Context>& context)
{
    context->bitmap = stockObject(kDefaultBitmap);
    context->font = stockObject(SYSTEM_FONT);
    context->brush = stockObject(WHITE_BRUSH);
    context->pen = stockObject(BLACK_PEN);
    const bool complete = context->bitmap && context->font && context->brush && context->pen;
    return complete && publish(context) != nullptr;
}

} // namespace vq::win32
