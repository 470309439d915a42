// SPDX-License-Identifier: MIT
#include "Platform/win32/GdiObjects.h"

#include "Platform/win32/BitmapObject.h"
#include "Platform/win32/ContextObject.h"
#include "Platform/win32/Errors.h"
#include "Platform/win32/RecordObjects.h"

#include <algorithm>

using namespace vq::win32;

int GetObjectW(HANDLE object, int bytes, LPVOID buffer)
{
    const std::scoped_lock lock(gdiLock);
    const auto found = findObject(object);
    if (!found) {
        SetLastError(ERROR_INVALID_HANDLE);
        return 0;
    }
    return buffer ? found->describe(std::max(bytes, 0), buffer) : found->descriptionSize();
}

DWORD GetObjectType(HGDIOBJ object)
{
    const std::scoped_lock lock(gdiLock);
    const auto found = findObject(object);
    if (found)
        return found->type();
    SetLastError(ERROR_INVALID_HANDLE);
    return 0;
}

BOOL DeleteObject(HGDIOBJ object)
{
    const std::scoped_lock lock(gdiLock);
    const auto found = findObject(object);
    if (!found)
        return FALSE;
    if (found->isStock)
        return TRUE;
    const auto* bitmap = dynamic_cast<const Bitmap*>(found.get());
    if (bitmap && bitmap->selectedInto)
        return FALSE;
    if (auto* context = dynamic_cast<Context*>(found.get()))
        context->freeBitmap();
    retire(*found);
    return TRUE;
}

HFONT CreateFontIndirectW(const LOGFONTW* font)
{
    if (!font) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    LOGFONTW terminated = *font;
    terminated.lfFaceName[LF_FACESIZE - 1] = u'\0';
    const std::scoped_lock lock(gdiLock);
    return static_cast<HFONT>(publish(tryMake<Font>(terminated)));
}

HBRUSH CreateSolidBrush(COLORREF colour)
{
    const std::scoped_lock lock(gdiLock);
    return static_cast<HBRUSH>(publish(tryMake<Brush>(LOGBRUSH{BS_SOLID, colour, 0})));
}
