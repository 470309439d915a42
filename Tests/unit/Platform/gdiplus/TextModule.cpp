// SPDX-License-Identifier: MIT
// A library that draws text as soon as it is loaded. It is all that needs the platform layer.
#include "Platform/Platform.h"
#include "Platform/win32/Strings.h"

#include <cstdlib>

namespace {

using namespace Gdiplus;

Status drawLabel()
{
    Bitmap bitmap(100, 30, PixelFormat32bppARGB);
    Graphics graphics(&bitmap);
    const HDC context = CreateCompatibleDC(nullptr);
    LOGFONTW record{};
    record.lfHeight = -11;
    vq::win32::setFaceName(record, L"DejaVu Sans");
    const Font font(context, &record);
    DeleteDC(context);
    const SolidBrush brush{Color(0xFF000000)};
    return graphics.DrawString(L"Label \x05D0 \x4E00", -1, &font, PointF(), StringFormat::GenericDefault(), &brush);
}

[[gnu::constructor]] void drawWhenLoaded()
{
    ULONG_PTR token = 0;
    const GdiplusStartupInput input;
    if (GdiplusStartup(&token, &input, nullptr) != Ok || drawLabel() != Ok)
        std::abort();
    GdiplusShutdown(token);
}

} // namespace
