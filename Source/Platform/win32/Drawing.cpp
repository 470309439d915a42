// SPDX-License-Identifier: MIT
#include "Platform/win32/Drawing.h"

#include "Platform/win32/ContextObject.h"
#include "Platform/win32/Errors.h"
#include "Platform/win32/PixelTransfer.h"
#include "Platform/win32/RecordObjects.h"

#include <cstring>
#include <optional>

using namespace vq::win32;

namespace {

constexpr DWORD kWhite = 0xFFFFFFFF; // every bit, as on Windows
constexpr DWORD kBlack = 0;

BOOL fail(DWORD error)
{
    SetLastError(error);
    return FALSE;
}

std::optional<Canvas> canvasOf(HDC context)
{
    const auto found = find<Context>(context);
    return found ? found->canvas() : std::nullopt;
}

/// The rows of a block, which may have a negative height.
RowSpan rowsOf(const Block& block)
{
    return {block.y, block.y + block.height};
}

bool isInside(const Surface& surface, int x, int y)
{
    return x >= 0 && y >= 0 && x < surface.width && y < surface.height;
}

/// For work on one pixel; empty where there is none.
std::optional<Canvas> openCanvasAt(HDC context, int x, int y)
{
    std::unique_lock lock(gdiLock);
    auto canvas = canvasOf(context);
    lock.unlock();
    const bool isOpen = canvas && isInside(canvas->surface, x, y) && canvas->open(rowsOf({x, y, 1, 1}));
    return isOpen ? canvas : std::nullopt;
}

constexpr DWORD pixelOf(COLORREF colour)
{
    return static_cast<DWORD>(GetRValue(colour)) << 16 | static_cast<DWORD>(GetGValue(colour)) << 8 | GetBValue(colour);
}

COLORREF colourOf(DWORD pixel)
{
    return RGB(static_cast<BYTE>(pixel >> 16), static_cast<BYTE>(pixel >> 8), static_cast<BYTE>(pixel));
}

/// The pixel that a brush paints; empty for a brush that paints nothing.
std::optional<DWORD> pixelOf(const Brush& brush)
{
    if (brush.record.lbStyle != BS_SOLID)
        return std::nullopt;
    return pixelOf(brush.record.lbColor);
}

BOOL copyBlock(HDC target, const Block& block, HDC source, int sourceX, int sourceY)
{
    std::unique_lock lock(gdiLock);
    auto to = canvasOf(target);
    auto from = canvasOf(source);
    lock.unlock();
    if (!to || !from)
        return fail(ERROR_INVALID_HANDLE);
    if (!to->open(rowsOf(block)) || !from->open(rowsOf({sourceX, sourceY, block.width, block.height})))
        return FALSE;
    return copyPixels(to->surface, block, from->surface, sourceX, sourceY) || fail(ERROR_NOT_ENOUGH_MEMORY);
}

BOOL fillBlock(Canvas& canvas, const Block& block, DWORD pixel)
{
    if (!canvas.open(rowsOf(block)))
        return FALSE;
    fillPixels(canvas.surface, block, pixel);
    return TRUE;
}

BOOL fillBlock(HDC target, const Block& block, DWORD operation)
{
    std::unique_lock lock(gdiLock);
    const auto context = find<Context>(target);
    auto canvas = context ? context->canvas() : std::nullopt;
    if (!canvas)
        return fail(ERROR_INVALID_HANDLE);
    const auto brush = std::static_pointer_cast<Brush>(context->brush);
    lock.unlock();

    std::optional<DWORD> pixel = operation == WHITENESS ? kWhite : kBlack;
    if (operation == PATCOPY)
        pixel = pixelOf(*brush);
    return !pixel || fillBlock(*canvas, block, *pixel);
}

} // namespace

BOOL BitBlt(HDC target, int x, int y, int width, int height, HDC source, int sourceX, int sourceY, DWORD operation)
{
    if (operation == SRCCOPY)
        return copyBlock(target, {x, y, width, height}, source, sourceX, sourceY);
    return PatBlt(target, x, y, width, height, operation);
}

BOOL PatBlt(HDC target, int x, int y, int width, int height, DWORD operation)
{
    if (operation != BLACKNESS && operation != WHITENESS && operation != PATCOPY)
        return fail(ERROR_NOT_SUPPORTED);
    return fillBlock(target, {x, y, width, height}, operation);
}

int FillRect(HDC context, const RECT* rect, HBRUSH brush)
{
    std::unique_lock lock(gdiLock);
    auto canvas = canvasOf(context);
    const auto found = find<Brush>(brush);
    lock.unlock();
    if (!rect || !canvas || !found)
        return fail(ERROR_INVALID_HANDLE);
    const Block block{rect->left, rect->top, std::int64_t{rect->right} - rect->left,
                      std::int64_t{rect->bottom} - rect->top};
    const auto pixel = pixelOf(*found);
    return !pixel || fillBlock(*canvas, block, *pixel);
}

COLORREF SetPixel(HDC context, int x, int y, COLORREF colour)
{
    const auto canvas = openCanvasAt(context, x, y);
    if (!canvas)
        return CLR_INVALID;
    fillPixels(canvas->surface, {x, y, 1, 1}, pixelOf(colour));
    return colour & 0x00FFFFFF;
}

COLORREF GetPixel(HDC context, int x, int y)
{
    const auto canvas = openCanvasAt(context, x, y);
    if (!canvas)
        return CLR_INVALID;
    DWORD pixel = 0;
    std::memcpy(&pixel, canvas->surface.row(y) + std::ptrdiff_t{x} * 4, sizeof pixel);
    return colourOf(pixel);
}
