// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/Font.h"

#include "Platform/gdiplus/FontAccess.h"
#include "Platform/gdiplus/Graphics.h"
#include "Platform/gdiplus/GraphicsState.h"
#include "Platform/gdiplus/Started.h"
#include "Platform/gdiplus/text/FaceNames.h"
#include "Platform/win32/DeviceContexts.h"
#include "Platform/win32/GdiObjects.h"
#include "Platform/win32/Strings.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vq::gdiplus {

FontDescription styled(const FontDescription& family, INT style, float size)
{
    FontDescription font = family;
    font.size = size;
    font.sizeRule = SizeRule::Em;
    font.bold = (style & Gdiplus::FontStyleBold) != 0;
    font.italic = (style & Gdiplus::FontStyleItalic) != 0;
    font.underline = (style & Gdiplus::FontStyleUnderline) != 0;
    font.strikeout = (style & Gdiplus::FontStyleStrikeout) != 0;
    return font;
}

std::shared_ptr<const Font> openSample(const FontDescription& family, INT style)
{
    return openFont(styled(family, style & Gdiplus::FontStyleBoldItalic, 1));
}

FontDescription familyOf(const Font& font)
{
    LOGFONTW record{};
    win32::setFaceName(record, win32::fromUtf8(font.family));
    const FontDescription opened = describe(record);
    const std::u16string_view asked = font.description.faceName();
    const bool isOpened = asked.empty() || sameFace(asked, opened.faceName());
    FontDescription family;
    family.face = isOpened ? opened.face : font.description.face;
    family.fontClass = font.description.fontClass;
    return family;
}

INT styleOf(const FontDescription& font)
{
    return (font.bold ? Gdiplus::FontStyleBold : 0) | (font.italic ? Gdiplus::FontStyleItalic : 0) |
           (font.underline ? Gdiplus::FontStyleUnderline : 0) | (font.strikeout ? Gdiplus::FontStyleStrikeout : 0);
}

LOGFONTW recordOf(const FontDescription& font)
{
    LOGFONTW record{};
    record.lfWeight = font.bold ? FW_BOLD : FW_NORMAL;
    record.lfItalic = font.italic;
    record.lfUnderline = font.underline;
    record.lfStrikeOut = font.strikeout;
    record.lfCharSet = DEFAULT_CHARSET;
    std::ranges::copy(font.face, record.lfFaceName);
    return record;
}

} // namespace vq::gdiplus

namespace Gdiplus {

using vq::gdiplus::guarded;
using vq::gdiplus::pixelsPer;

namespace {

bool isContext(HDC hdc)
{
    const DWORD kind = GetObjectType(hdc);
    return kind == OBJ_DC || kind == OBJ_MEMDC;
}

/// An OEM font without a name is Windows' Terminal.
bool isRaster(const LOGFONTW& logfont, const vq::gdiplus::FontDescription& description)
{
    const bool isTerminal = description.faceName().empty() && logfont.lfCharSet == OEM_CHARSET;
    return isTerminal || vq::gdiplus::isRasterFace(description.faceName());
}

bool isFontUnit(Unit unit)
{
    return unit == UnitWorld || (UnitPixel <= unit && unit <= UnitMillimeter);
}

} // namespace

Font::Font(HDC hdc) : m_unit(UnitWorld), m_lastStatus(Ok)
{
    m_lastStatus = guarded([&] { return openSelected(hdc); });
}

Font::Font(HDC hdc, const LOGFONTW* logfont) : m_unit(UnitWorld), m_lastStatus(Ok)
{
    m_lastStatus = guarded([&] { return logfont ? open(hdc, *logfont) : openSelected(hdc); });
}

Font::Font(HDC hdc, HFONT hfont) : m_unit(UnitWorld), m_lastStatus(Ok)
{
    m_lastStatus = guarded([&] {
        LOGFONTW record{};
        const bool isFont = GetObjectType(hfont) == OBJ_FONT && GetObjectW(hfont, sizeof record, &record) != 0;
        return isFont ? open(hdc, record) : openSelected(hdc);
    });
}

Font::Font(const FontFamily* family, REAL emSize, INT style, Unit unit) : m_unit(unit), m_lastStatus(Ok)
{
    m_lastStatus = guarded([&] { return family ? open(*family, emSize, style, unit) : InvalidParameter; });
}

Font::Font(const WCHAR* familyName, REAL emSize, INT style, Unit unit, const FontCollection* fontCollection)
    : m_unit(unit), m_lastStatus(Ok)
{
    m_lastStatus = guarded([&] {
        const FontFamily family(familyName, fontCollection);
        const Status status = family.GetLastStatus();
        return status == Ok ? open(family, emSize, style, unit) : status;
    });
}

Font::Font(const Font& font, Status status) : m_font(font.m_font), m_unit(font.m_unit), m_lastStatus(status) {}

Font::~Font() = default;

Status Font::openSelected(HDC hdc)
{
    LOGFONTW record{};
    if (GetObjectW(GetCurrentObject(hdc, OBJ_FONT), sizeof record, &record) == 0)
        return InvalidParameter;
    return open(hdc, record);
}

Status Font::open(HDC hdc, const LOGFONTW& logfont)
{
    if (!isContext(hdc))
        return InvalidParameter;
    const vq::gdiplus::FontDescription description = vq::gdiplus::describe(logfont);
    if (isRaster(logfont, description))
        return NotTrueTypeFont;
    m_font = vq::gdiplus::openFont(description);
    return m_font ? Ok : NotTrueTypeFont;
}

Status Font::open(const FontFamily& family, REAL emSize, INT style, Unit unit)
{
    if (!family.m_description || !isFontUnit(unit))
        return InvalidParameter;
    m_font = vq::gdiplus::openFont(vq::gdiplus::styled(*family.m_description, style, emSize));
    return m_font ? Ok : InvalidParameter;
}

Font* Font::Clone() const
{
    Font* clone = nullptr;
    setStatus(guarded([&] {
        if (!m_font)
            return InvalidParameter;
        clone = new Font(*this, Ok);
        return clone ? Ok : OutOfMemory;
    }));
    return clone;
}

Status Font::GetFamily(FontFamily* family) const
{
    return setStatus(guarded([&] {
        if (!m_font || !family)
            return InvalidParameter;
        family->m_description = vq::gdiplus::familyOf(*m_font);
        return Ok;
    }));
}

INT Font::GetStyle() const
{
    const Status status = setStatus(guarded([&] { return m_font ? Ok : InvalidParameter; }));
    return status == Ok ? vq::gdiplus::styleOf(m_font->description) : FontStyleRegular;
}

REAL Font::GetSize() const
{
    const Status status = setStatus(guarded([&] { return m_font ? Ok : InvalidParameter; }));
    return status == Ok ? m_font->em : 0;
}

Unit Font::GetUnit() const
{
    const Status status = setStatus(guarded([&] { return m_font ? Ok : InvalidParameter; }));
    return status == Ok ? m_unit : UnitPoint;
}

double Font::worldUnits(Unit pageUnit, REAL dpi) const
{
    if (m_unit == UnitWorld)
        return 1;
    return static_cast<double>(pixelsPer(m_unit, dpi)) / static_cast<double>(pixelsPer(pageUnit, dpi));
}

REAL Font::GetHeight(const Graphics* graphics) const
{
    if (!graphics)
        return GetHeight(96 * vq::win32::displayScaleFactor());
    const Unit page = graphics->GetPageUnit();
    const REAL dpi = graphics->GetDpiY();
    const Status status = setStatus(guarded([&] { return m_font && dpi > 0 ? Ok : InvalidParameter; }));
    return status == Ok ? static_cast<REAL>(m_font->pixels(m_font->metrics.lineSpacing) * worldUnits(page, dpi)) : 0;
}

REAL Font::GetHeight(REAL dpi) const
{
    const Status status = setStatus(guarded([&] { return m_font ? Ok : InvalidParameter; }));
    return status == Ok ? static_cast<REAL>(m_font->pixels(m_font->metrics.lineSpacing) * worldUnits(UnitPixel, dpi))
                        : 0;
}

Status Font::GetLogFontW(const Graphics* graphics, LOGFONTW* logfontW) const
{
    return setStatus(guarded([&] {
        if (!m_font || !graphics || !logfontW)
            return InvalidParameter;
        const Unit page = graphics->GetPageUnit();
        const REAL dpi = graphics->GetDpiY();
        const double pixels = m_font->em * worldUnits(page, dpi) * pixelsPer(page, dpi) * graphics->GetPageScale();
        constexpr double kHighest = std::numeric_limits<LONG>::max();
        if (!(pixels <= kHighest))
            return InvalidParameter;
        vq::gdiplus::FontDescription description = m_font->description;
        description.face = vq::gdiplus::familyOf(*m_font).face;
        *logfontW = vq::gdiplus::recordOf(description);
        logfontW->lfHeight = static_cast<LONG>(-std::lround(pixels));
        return Ok;
    }));
}

std::shared_ptr<const vq::gdiplus::Font> Font::on(const vq::gdiplus::GraphicsState& surface) const
{
    if (!m_font)
        return nullptr;
    const double pixels = worldUnits(surface.settings.pageUnit, surface.resolution().y) * surface.pageFactors().y;
    if (pixels == 1)
        return m_font;
    const auto em = static_cast<REAL>(m_font->em * pixels);
    return vq::gdiplus::openFont(
        vq::gdiplus::styled(m_font->description, vq::gdiplus::styleOf(m_font->description), em));
}

Status Font::GetLastStatus() const
{
    return m_lastStatus;
}

BOOL Font::IsAvailable() const
{
    return m_font != nullptr;
}

Status Font::setStatus(Status status) const
{
    if (status != Ok)
        m_lastStatus = status;
    return status;
}

} // namespace Gdiplus
