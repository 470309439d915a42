// SPDX-License-Identifier: MIT
#include "Platform/win32/StockObjects.h"

#include "Platform/win32/BitmapObject.h"
#include "Platform/win32/GdiObjects.h"
#include "Platform/win32/RecordObjects.h"
#include "Platform/win32/Strings.h"

#include <array>
#include <string_view>

namespace vq::win32 {
namespace {

struct StockBrush
{
    int index;
    UINT style;
    COLORREF colour;
};

constexpr std::array kBrushes{
    StockBrush{WHITE_BRUSH, BS_SOLID, RGB(255, 255, 255)}, StockBrush{LTGRAY_BRUSH, BS_SOLID, RGB(192, 192, 192)},
    StockBrush{GRAY_BRUSH, BS_SOLID, RGB(128, 128, 128)},  StockBrush{DKGRAY_BRUSH, BS_SOLID, RGB(64, 64, 64)},
    StockBrush{BLACK_BRUSH, BS_SOLID, RGB(0, 0, 0)},       StockBrush{NULL_BRUSH, BS_NULL, RGB(0, 0, 0)},
};

struct StockPen
{
    int index;
    UINT style;
    LONG width;
    COLORREF colour;
};

constexpr std::array kPens{
    StockPen{WHITE_PEN, PS_SOLID, 0, RGB(255, 255, 255)},
    StockPen{BLACK_PEN, PS_SOLID, 0, RGB(0, 0, 0)},
    StockPen{NULL_PEN, PS_NULL, 1, RGB(0, 0, 0)},
};

struct StockFont
{
    int index;
    LONG height;
    LONG width;
    LONG weight;
    BYTE charSet;
    BYTE pitchAndFamily;
    std::wstring_view face;
};

constexpr BYTE kSwiss = VARIABLE_PITCH | FF_SWISS;
constexpr BYTE kModern = FIXED_PITCH | FF_MODERN;

// Read with GetObjectW on Wine 8.0 at 96 dots per inch.
constexpr std::array kFonts{
    StockFont{OEM_FIXED_FONT, 12, 0, FW_NORMAL, OEM_CHARSET, kModern, L""},
    StockFont{ANSI_FIXED_FONT, 12, 0, FW_NORMAL, ANSI_CHARSET, kModern, L"Courier"},
    StockFont{ANSI_VAR_FONT, 12, 0, FW_NORMAL, ANSI_CHARSET, kSwiss, L"MS Sans Serif"},
    StockFont{SYSTEM_FONT, 16, 7, FW_BOLD, ANSI_CHARSET, kSwiss, L"System"},
    StockFont{DEVICE_DEFAULT_FONT, 16, 0, FW_BOLD, ANSI_CHARSET, kSwiss, L"System"},
    StockFont{SYSTEM_FIXED_FONT, 16, 0, FW_NORMAL, ANSI_CHARSET, kModern, L"Courier"},
    StockFont{DEFAULT_GUI_FONT, -11, 0, FW_NORMAL, ANSI_CHARSET, kSwiss, L"MS Shell Dlg"},
};

constinit std::array<HGDIOBJ, kDefaultBitmap + 1> handles{};

template <typename Rows>
auto rowOf(const Rows& rows, int index)
{
    for (const auto& row : rows)
        if (row.index == index)
            return &row;
    return static_cast<const typename Rows::value_type*>(nullptr);
}

LOGFONTW logicalFont(const StockFont& row)
{
    LOGFONTW font{};
    font.lfHeight = row.height;
    font.lfWidth = row.width;
    font.lfWeight = row.weight;
    font.lfCharSet = row.charSet;
    font.lfPitchAndFamily = row.pitchAndFamily;
    setFaceName(font, row.face);
    return font;
}

std::shared_ptr<GdiObject> make(int index)
{
    if (const auto* brush = rowOf(kBrushes, index))
        return tryMake<Brush>(LOGBRUSH{brush->style, brush->colour, 0});
    if (const auto* pen = rowOf(kPens, index))
        return tryMake<Pen>(LOGPEN{pen->style, {pen->width, 0}, pen->colour});
    if (const auto* font = rowOf(kFonts, index))
        return tryMake<Font>(logicalFont(*font));
    return index == kDefaultBitmap ? Bitmap::create(1, 1, 1) : nullptr;
}

} // namespace

std::shared_ptr<GdiObject> stockObject(int index)
{
    if (index < 0 || index > kDefaultBitmap)
        return nullptr;
    HGDIOBJ& handle = handles[static_cast<std::size_t>(index)];
    if (!handle) {
        const std::shared_ptr<GdiObject> object = make(index);
        if (!object)
            return nullptr;
        object->isStock = true;
        handle = publish(object);
    }
    return findObject(handle);
}

} // namespace vq::win32

HGDIOBJ GetStockObject(int index)
{
    const std::scoped_lock lock(vq::win32::gdiLock);
    const auto object = vq::win32::stockObject(index);
    return object ? object->handle : nullptr;
}
