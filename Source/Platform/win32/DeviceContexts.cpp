// SPDX-License-Identifier: MIT
#include "Platform/win32/DeviceContexts.h"

#include "Platform/win32/BitmapObject.h"
#include "Platform/win32/ContextObject.h"
#include "Platform/win32/Errors.h"

#include <algorithm>
#include <string_view>

using namespace vq::win32;

namespace {

// The only window there is. Its handle is never followed.
HWND__ desktopWindow{};

HDC createUnlocked(Context::Target target)
{
    const auto context = createContext(target);
    return context ? static_cast<HDC>(context->handle) : nullptr;
}

HDC create(Context::Target target)
{
    const std::scoped_lock lock(gdiLock);
    return createUnlocked(target);
}

std::nullptr_t fail(DWORD error)
{
    SetLastError(error);
    return nullptr;
}

bool isDesktop(HWND window)
{
    return !window || window == &desktopWindow;
}

bool equalsIgnoringCase(std::wstring_view text, std::wstring_view upperCase)
{
    return std::equal(text.begin(), text.end(), upperCase.begin(), upperCase.end(), [](wchar_t one, wchar_t upper) {
        return one == upper || (upper >= L'A' && upper <= L'Z' && one == upper - L'A' + L'a');
    });
}

// A bitmap is in one context at a time; the stock bitmap is in any number and stands for none.
bool moveBitmap(Context& context, GdiObject& object)
{
    auto& bitmap = static_cast<Bitmap&>(object);
    if (bitmap.selectedInto && bitmap.selectedInto != &context)
        return false;
    context.freeBitmap();
    if (!bitmap.isStock)
        bitmap.selectedInto = &context;
    return true;
}

} // namespace

HDC CreateCompatibleDC(HDC context)
{
    const std::scoped_lock lock(gdiLock);
    if (context && !find<Context>(context))
        return fail(ERROR_INVALID_HANDLE);
    return createUnlocked(Context::Target::Memory);
}

HDC CreateDCW(LPCWSTR driver, LPCWSTR, LPCWSTR, const void*)
{
    if (!driver || !equalsIgnoringCase(driver, L"DISPLAY"))
        return fail(ERROR_INVALID_PARAMETER);
    return create(Context::Target::Screen);
}

HDC GetDC(HWND window)
{
    return isDesktop(window) ? create(Context::Target::Screen) : fail(ERROR_INVALID_WINDOW_HANDLE);
}

HDC GetWindowDC(HWND window)
{
    return GetDC(window);
}

int ReleaseDC(HWND window, HDC context)
{
    const std::scoped_lock lock(gdiLock);
    const auto found = find<Context>(context);
    if (!isDesktop(window) || !found || found->target != Context::Target::Screen)
        return 0;
    retire(*found);
    return 1;
}

BOOL DeleteDC(HDC context)
{
    const std::scoped_lock lock(gdiLock);
    const auto found = find<Context>(context);
    if (!found) {
        SetLastError(ERROR_INVALID_HANDLE);
        return FALSE;
    }
    found->freeBitmap();
    retire(*found);
    return TRUE;
}

HWND GetDesktopWindow()
{
    return &desktopWindow;
}

HGDIOBJ SelectObject(HDC context, HGDIOBJ object)
{
    const std::scoped_lock lock(gdiLock);
    const auto found = find<Context>(context);
    if (!found)
        return fail(ERROR_INVALID_HANDLE);
    auto selected = findObject(object);
    auto* slot = selected ? found->slot(selected->type()) : nullptr;
    if (!slot || (selected->type() == OBJ_BITMAP && !moveBitmap(*found, *selected)))
        return nullptr;
    slot->swap(selected);
    return selected->handle;
}

HGDIOBJ GetCurrentObject(HDC context, UINT kind)
{
    const std::scoped_lock lock(gdiLock);
    const auto found = find<Context>(context);
    const auto* slot = found ? found->slot(kind) : nullptr;
    return slot ? (*slot)->handle : nullptr;
}
