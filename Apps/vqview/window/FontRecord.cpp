// SPDX-License-Identifier: MIT
#include "vqview/window/FontRecord.h"

#include "vqview/text/Text.h"
#include "vqview/window/Colours.h"

#include <cstdlib>

namespace vqview {

namespace {

constexpr int kStandardDotsPerInch = 96;
constexpr int kPointsPerInch = 72;

int screenDotsPerInch()
{
    const HDC screen = GetDC(nullptr);
    const int dotsPerInch = screen ? GetDeviceCaps(screen, LOGPIXELSY) : 0;
    if (screen)
        ReleaseDC(nullptr, screen);
    return dotsPerInch > 0 ? dotsPerInch : kStandardDotsPerInch;
}

void setHeights(CVQFont& font, int dotsPerInch)
{
    font.m_LogFont.lfHeight = MulDiv(font.m_iNominalSize, dotsPerInch, kStandardDotsPerInch);
    font.m_iPointHeight = -MulDiv(font.m_iNominalSize, dotsPerInch, kPointsPerInch);
}

} // namespace

std::string faceOf(const CVQFont& font)
{
    return utf8Of(std::wstring_view(vq::platform::faceName(font.m_LogFont)));
}

void setFace(CVQFont& font, std::string_view utf8)
{
    vq::platform::setFaceName(font.m_LogFont, wideOf(utf8));
}

int heightOf(const CVQFont& font)
{
    return std::abs(font.m_iNominalSize);
}

void setHeight(CVQFont& font, int height)
{
    font.m_iNominalSize = -std::max(height, 1);
    setHeights(font, screenDotsPerInch());
}

Value fontColourOf(const CVQFont& font)
{
    CVQColor colour;
    colour.Set(font.m_uiColor, false);
    return valueOf(colour);
}

void setFontColour(CVQFont& font, const Value& value)
{
    font.m_uiColor = opaqueColourOf(value).GetCOLORREF();
}

void followScreenResolution()
{
    const int dotsPerInch = screenDotsPerInch();
    for (CVQFont& font : CVQDrawProperty::m_Font)
        setHeights(font, dotsPerInch);
}

} // namespace vqview
