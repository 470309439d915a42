// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/FontFamily.h"

#include "Platform/gdiplus/FontAccess.h"
#include "Platform/gdiplus/Started.h"
#include "Platform/gdiplus/text/FaceNames.h"
#include "Platform/win32/Strings.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace Gdiplus {

using vq::gdiplus::FontDescription;
using vq::gdiplus::FontMetrics;
using vq::gdiplus::guarded;

namespace {

FontDescription described(std::u16string_view face)
{
    FontDescription description;
    std::ranges::copy(face, description.face.begin());
    return description;
}

FontDescription described(std::wstring_view face)
{
    LOGFONTW record{};
    vq::win32::setFaceName(record, face);
    return described(std::u16string_view(record.lfFaceName));
}

/// A name that can be one of a family that GDI+ has.
bool isFamilyName(std::wstring_view name)
{
    return !name.empty() && name.size() < LF_FACESIZE && !vq::gdiplus::isRasterFace(described(name).faceName());
}

bool isKnown(const vq::gdiplus::Font& font)
{
    return font.held || !vq::gdiplus::substitutesFor(font.description.faceName()).empty();
}

} // namespace

const FontFamily* FontFamily::GenericMonospace()
{
    static const FontFamily family(described(u"Courier New"));
    return &family;
}

const FontFamily* FontFamily::GenericSansSerif()
{
    static const FontFamily family(described(u"Microsoft Sans Serif"));
    return &family;
}

const FontFamily* FontFamily::GenericSerif()
{
    static const FontFamily family(described(u"Times New Roman"));
    return &family;
}

FontFamily::FontFamily() : m_lastStatus(Ok) {}

FontFamily::FontFamily(const FontDescription& description) : m_description(description), m_lastStatus(Ok) {}

FontFamily::FontFamily(const WCHAR* name, const FontCollection*) : m_lastStatus(Ok)
{
    m_lastStatus = guarded([&] {
        if (!name)
            return InvalidParameter;
        if (!isFamilyName(name))
            return FontFamilyNotFound;
        const auto font = vq::gdiplus::openSample(described(name), FontStyleRegular);
        if (!font || !isKnown(*font))
            return FontFamilyNotFound;
        m_description = vq::gdiplus::familyOf(*font);
        return Ok;
    });
}

FontFamily* FontFamily::Clone() const
{
    FontFamily* clone = nullptr;
    setStatus(guarded([&] {
        if (!m_description)
            return InvalidParameter;
        clone = new FontFamily(*m_description);
        return clone ? Ok : OutOfMemory;
    }));
    return clone;
}

Status FontFamily::GetFamilyName(WCHAR name[LF_FACESIZE], LANGID) const
{
    return setStatus(guarded([&] {
        if (!m_description || !name)
            return InvalidParameter;
        const std::wstring face = vq::win32::faceName(vq::gdiplus::recordOf(*m_description));
        *std::ranges::copy(face, name).out = L'\0';
        return Ok;
    }));
}

UINT16 FontFamily::measure(INT style, int FontMetrics::*size) const
{
    UINT16 result = 0;
    setStatus(guarded([&] {
        const auto font = m_description ? vq::gdiplus::openSample(*m_description, style) : nullptr;
        if (!font)
            return InvalidParameter;
        constexpr int kHighest = std::numeric_limits<UINT16>::max();
        result = static_cast<UINT16>(std::clamp(font->metrics.*size, 0, kHighest));
        return Ok;
    }));
    return result;
}

UINT16 FontFamily::GetEmHeight(INT style) const
{
    return measure(style, &FontMetrics::unitsPerEm);
}

UINT16 FontFamily::GetCellAscent(INT style) const
{
    return measure(style, &FontMetrics::ascent);
}

UINT16 FontFamily::GetCellDescent(INT style) const
{
    return measure(style, &FontMetrics::descent);
}

UINT16 FontFamily::GetLineSpacing(INT style) const
{
    return measure(style, &FontMetrics::lineSpacing);
}

BOOL FontFamily::IsStyleAvailable(INT) const
{
    return setStatus(guarded([&] { return m_description ? Ok : InvalidParameter; })) == Ok;
}

BOOL FontFamily::IsAvailable() const
{
    return m_description.has_value();
}

Status FontFamily::GetLastStatus() const
{
    return std::exchange(m_lastStatus, Ok);
}

Status FontFamily::setStatus(Status status) const
{
    if (status != Ok)
        m_lastStatus = status;
    return status;
}

} // namespace Gdiplus
