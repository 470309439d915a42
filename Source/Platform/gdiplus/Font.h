// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Fonts to draw text with.

#include "Platform/Export.h"
#include "Platform/gdiplus/Base.h"
#include "Platform/gdiplus/Enums.h"
#include "Platform/gdiplus/FontFamily.h"

#include <memory>

namespace vq::gdiplus {
struct Font;
class GraphicsState;
} // namespace vq::gdiplus

namespace Gdiplus {

class Graphics;

/// A family in a style and at a size. To make the same font again costs a look-up. A face that is not installed is
/// replaced by a similar one, and styles that it lacks are made. `GetLastStatus` does not forget the failure, as with
/// GDI+.
class VQPLATFORM_API Font : public GdiplusBase
{
    friend class Graphics;

public:
    /// The font that is selected into a context. `NotTrueTypeFont` for a raster font; a fresh context has one.
    Font(HDC hdc);
    /// The font of a record, in world units: a negative height is the em's, a positive one the cell's (the em is then a
    /// whole number), 0 that of GDI's default. A weight above 400 is bold; width and angles do not matter. A null
    /// record is the context's own font. `NotTrueTypeFont` for the name of a raster font, `InvalidParameter` for a
    /// context that is none.
    Font(HDC hdc, const LOGFONTW* logfont);
    /// The font of an object; a null or stale one is the context's own font.
    Font(HDC hdc, HFONT hfont);
    /// `InvalidParameter` for a size that is not above 0 or above 10000, and for a unit that is none or UnitDisplay.
    Font(const FontFamily* family, REAL emSize, INT style = FontStyleRegular, Unit unit = UnitPoint);
    /// `FontFamilyNotFound` for a name that is neither installed nor known; the font collection is null.
    Font(const WCHAR* familyName, REAL emSize, INT style = FontStyleRegular, Unit unit = UnitPoint,
         const FontCollection* fontCollection = nullptr);
    ~Font();
    Font(const Font&) = delete;
    Font& operator=(const Font&) = delete;

    /// A copy that the caller deletes; null when it fails.
    Font* Clone() const;

    Status GetFamily(FontFamily* family) const;
    INT GetStyle() const;
    /// The em, in the font's unit.
    REAL GetSize() const;
    Unit GetUnit() const;

    /// The line spacing: on a surface in world units, at a resolution in pixels (for world units and pixels in these).
    REAL GetHeight(const Graphics* graphics) const;
    REAL GetHeight(REAL dpi) const;

    /// The record of the font on a surface: the em in pixels, negative; charset, pitch and precisions are the defaults.
    Status GetLogFontW(const Graphics* graphics, LOGFONTW* logfontW) const;

    Status GetLastStatus() const;
    BOOL IsAvailable() const;

private:
    Font(const Font& font, Status status);
    Status setStatus(Status status) const;
    Status open(HDC hdc, const LOGFONTW& logfont);
    Status openSelected(HDC hdc);
    Status open(const FontFamily& family, REAL emSize, INT style, Unit unit);
    /// World units per unit of the font.
    double worldUnits(Unit pageUnit, REAL dpi) const;
    /// The font in pixels of a surface; null when it is broken or its size there is beyond all bounds.
    std::shared_ptr<const vq::gdiplus::Font> on(const vq::gdiplus::GraphicsState& surface) const;

    std::shared_ptr<const vq::gdiplus::Font> m_font; ///< its pixels are the unit; null when the font is broken
    Unit m_unit;
    mutable Status m_lastStatus;
};

} // namespace Gdiplus
