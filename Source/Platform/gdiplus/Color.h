// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Colours with straight alpha.

#include "Platform/gdiplus/PixelFormats.h"

namespace Gdiplus {

class Color
{
public:
    static constexpr ARGB AlphaMask = 0xFF000000;

    static constexpr ARGB AliceBlue = 0xFFF0F8FF;
    static constexpr ARGB AntiqueWhite = 0xFFFAEBD7;
    static constexpr ARGB Aqua = 0xFF00FFFF;
    static constexpr ARGB Aquamarine = 0xFF7FFFD4;
    static constexpr ARGB Azure = 0xFFF0FFFF;
    static constexpr ARGB Beige = 0xFFF5F5DC;
    static constexpr ARGB Bisque = 0xFFFFE4C4;
    static constexpr ARGB Black = 0xFF000000;
    static constexpr ARGB BlanchedAlmond = 0xFFFFEBCD;
    static constexpr ARGB Blue = 0xFF0000FF;
    static constexpr ARGB BlueViolet = 0xFF8A2BE2;
    static constexpr ARGB Brown = 0xFFA52A2A;
    static constexpr ARGB BurlyWood = 0xFFDEB887;
    static constexpr ARGB CadetBlue = 0xFF5F9EA0;
    static constexpr ARGB Chartreuse = 0xFF7FFF00;
    static constexpr ARGB Chocolate = 0xFFD2691E;
    static constexpr ARGB Coral = 0xFFFF7F50;
    static constexpr ARGB CornflowerBlue = 0xFF6495ED;
    static constexpr ARGB Cornsilk = 0xFFFFF8DC;
    static constexpr ARGB Crimson = 0xFFDC143C;
    static constexpr ARGB Cyan = 0xFF00FFFF;
    static constexpr ARGB DarkBlue = 0xFF00008B;
    static constexpr ARGB DarkCyan = 0xFF008B8B;
    static constexpr ARGB DarkGoldenrod = 0xFFB8860B;
    static constexpr ARGB DarkGray = 0xFFA9A9A9;
    static constexpr ARGB DarkGreen = 0xFF006400;
    static constexpr ARGB DarkKhaki = 0xFFBDB76B;
    static constexpr ARGB DarkMagenta = 0xFF8B008B;
    static constexpr ARGB DarkOliveGreen = 0xFF556B2F;
    static constexpr ARGB DarkOrange = 0xFFFF8C00;
    static constexpr ARGB DarkOrchid = 0xFF9932CC;
    static constexpr ARGB DarkRed = 0xFF8B0000;
    static constexpr ARGB DarkSalmon = 0xFFE9967A;
    static constexpr ARGB DarkSeaGreen = 0xFF8FBC8F;
    static constexpr ARGB DarkSlateBlue = 0xFF483D8B;
    static constexpr ARGB DarkSlateGray = 0xFF2F4F4F;
    static constexpr ARGB DarkTurquoise = 0xFF00CED1;
    static constexpr ARGB DarkViolet = 0xFF9400D3;
    static constexpr ARGB DeepPink = 0xFFFF1493;
    static constexpr ARGB DeepSkyBlue = 0xFF00BFFF;
    static constexpr ARGB DimGray = 0xFF696969;
    static constexpr ARGB DodgerBlue = 0xFF1E90FF;
    static constexpr ARGB Firebrick = 0xFFB22222;
    static constexpr ARGB FloralWhite = 0xFFFFFAF0;
    static constexpr ARGB ForestGreen = 0xFF228B22;
    static constexpr ARGB Fuchsia = 0xFFFF00FF;
    static constexpr ARGB Gainsboro = 0xFFDCDCDC;
    static constexpr ARGB GhostWhite = 0xFFF8F8FF;
    static constexpr ARGB Gold = 0xFFFFD700;
    static constexpr ARGB Goldenrod = 0xFFDAA520;
    static constexpr ARGB Gray = 0xFF808080;
    static constexpr ARGB Green = 0xFF008000;
    static constexpr ARGB GreenYellow = 0xFFADFF2F;
    static constexpr ARGB Honeydew = 0xFFF0FFF0;
    static constexpr ARGB HotPink = 0xFFFF69B4;
    static constexpr ARGB IndianRed = 0xFFCD5C5C;
    static constexpr ARGB Indigo = 0xFF4B0082;
    static constexpr ARGB Ivory = 0xFFFFFFF0;
    static constexpr ARGB Khaki = 0xFFF0E68C;
    static constexpr ARGB Lavender = 0xFFE6E6FA;
    static constexpr ARGB LavenderBlush = 0xFFFFF0F5;
    static constexpr ARGB LawnGreen = 0xFF7CFC00;
    static constexpr ARGB LemonChiffon = 0xFFFFFACD;
    static constexpr ARGB LightBlue = 0xFFADD8E6;
    static constexpr ARGB LightCoral = 0xFFF08080;
    static constexpr ARGB LightCyan = 0xFFE0FFFF;
    static constexpr ARGB LightGoldenrodYellow = 0xFFFAFAD2;
    static constexpr ARGB LightGray = 0xFFD3D3D3;
    static constexpr ARGB LightGreen = 0xFF90EE90;
    static constexpr ARGB LightPink = 0xFFFFB6C1;
    static constexpr ARGB LightSalmon = 0xFFFFA07A;
    static constexpr ARGB LightSeaGreen = 0xFF20B2AA;
    static constexpr ARGB LightSkyBlue = 0xFF87CEFA;
    static constexpr ARGB LightSlateGray = 0xFF778899;
    static constexpr ARGB LightSteelBlue = 0xFFB0C4DE;
    static constexpr ARGB LightYellow = 0xFFFFFFE0;
    static constexpr ARGB Lime = 0xFF00FF00;
    static constexpr ARGB LimeGreen = 0xFF32CD32;
    static constexpr ARGB Linen = 0xFFFAF0E6;
    static constexpr ARGB Magenta = 0xFFFF00FF;
    static constexpr ARGB Maroon = 0xFF800000;
    static constexpr ARGB MediumAquamarine = 0xFF66CDAA;
    static constexpr ARGB MediumBlue = 0xFF0000CD;
    static constexpr ARGB MediumOrchid = 0xFFBA55D3;
    static constexpr ARGB MediumPurple = 0xFF9370DB;
    static constexpr ARGB MediumSeaGreen = 0xFF3CB371;
    static constexpr ARGB MediumSlateBlue = 0xFF7B68EE;
    static constexpr ARGB MediumSpringGreen = 0xFF00FA9A;
    static constexpr ARGB MediumTurquoise = 0xFF48D1CC;
    static constexpr ARGB MediumVioletRed = 0xFFC71585;
    static constexpr ARGB MidnightBlue = 0xFF191970;
    static constexpr ARGB MintCream = 0xFFF5FFFA;
    static constexpr ARGB MistyRose = 0xFFFFE4E1;
    static constexpr ARGB Moccasin = 0xFFFFE4B5;
    static constexpr ARGB NavajoWhite = 0xFFFFDEAD;
    static constexpr ARGB Navy = 0xFF000080;
    static constexpr ARGB OldLace = 0xFFFDF5E6;
    static constexpr ARGB Olive = 0xFF808000;
    static constexpr ARGB OliveDrab = 0xFF6B8E23;
    static constexpr ARGB Orange = 0xFFFFA500;
    static constexpr ARGB OrangeRed = 0xFFFF4500;
    static constexpr ARGB Orchid = 0xFFDA70D6;
    static constexpr ARGB PaleGoldenrod = 0xFFEEE8AA;
    static constexpr ARGB PaleGreen = 0xFF98FB98;
    static constexpr ARGB PaleTurquoise = 0xFFAFEEEE;
    static constexpr ARGB PaleVioletRed = 0xFFDB7093;
    static constexpr ARGB PapayaWhip = 0xFFFFEFD5;
    static constexpr ARGB PeachPuff = 0xFFFFDAB9;
    static constexpr ARGB Peru = 0xFFCD853F;
    static constexpr ARGB Pink = 0xFFFFC0CB;
    static constexpr ARGB Plum = 0xFFDDA0DD;
    static constexpr ARGB PowderBlue = 0xFFB0E0E6;
    static constexpr ARGB Purple = 0xFF800080;
    static constexpr ARGB Red = 0xFFFF0000;
    static constexpr ARGB RosyBrown = 0xFFBC8F8F;
    static constexpr ARGB RoyalBlue = 0xFF4169E1;
    static constexpr ARGB SaddleBrown = 0xFF8B4513;
    static constexpr ARGB Salmon = 0xFFFA8072;
    static constexpr ARGB SandyBrown = 0xFFF4A460;
    static constexpr ARGB SeaGreen = 0xFF2E8B57;
    static constexpr ARGB SeaShell = 0xFFFFF5EE;
    static constexpr ARGB Sienna = 0xFFA0522D;
    static constexpr ARGB Silver = 0xFFC0C0C0;
    static constexpr ARGB SkyBlue = 0xFF87CEEB;
    static constexpr ARGB SlateBlue = 0xFF6A5ACD;
    static constexpr ARGB SlateGray = 0xFF708090;
    static constexpr ARGB Snow = 0xFFFFFAFA;
    static constexpr ARGB SpringGreen = 0xFF00FF7F;
    static constexpr ARGB SteelBlue = 0xFF4682B4;
    static constexpr ARGB Tan = 0xFFD2B48C;
    static constexpr ARGB Teal = 0xFF008080;
    static constexpr ARGB Thistle = 0xFFD8BFD8;
    static constexpr ARGB Tomato = 0xFFFF6347;
    static constexpr ARGB Transparent = 0x00FFFFFF;
    static constexpr ARGB Turquoise = 0xFF40E0D0;
    static constexpr ARGB Violet = 0xFFEE82EE;
    static constexpr ARGB Wheat = 0xFFF5DEB3;
    static constexpr ARGB White = 0xFFFFFFFF;
    static constexpr ARGB WhiteSmoke = 0xFFF5F5F5;
    static constexpr ARGB Yellow = 0xFFFFFF00;
    static constexpr ARGB YellowGreen = 0xFF9ACD32;

    constexpr Color() : m_value(Black) {}
    constexpr Color(BYTE r, BYTE g, BYTE b) : m_value(MakeARGB(0xFF, r, g, b)) {}
    constexpr Color(BYTE a, BYTE r, BYTE g, BYTE b) : m_value(MakeARGB(a, r, g, b)) {}
    constexpr Color(ARGB argb) : m_value(argb) {}

    constexpr BYTE GetAlpha() const { return static_cast<BYTE>(m_value >> 24); }
    constexpr BYTE GetA() const { return GetAlpha(); }
    constexpr BYTE GetRed() const { return static_cast<BYTE>(m_value >> 16); }
    constexpr BYTE GetR() const { return GetRed(); }
    constexpr BYTE GetGreen() const { return static_cast<BYTE>(m_value >> 8); }
    constexpr BYTE GetG() const { return GetGreen(); }
    constexpr BYTE GetBlue() const { return static_cast<BYTE>(m_value); }
    constexpr BYTE GetB() const { return GetBlue(); }

    constexpr ARGB GetValue() const { return m_value; }
    constexpr VOID SetValue(ARGB argb) { m_value = argb; }

    /// Takes red, green and blue; the result is opaque.
    constexpr VOID SetFromCOLORREF(COLORREF rgb)
    {
        m_value = MakeARGB(0xFF, GetRValue(rgb), GetGValue(rgb), GetBValue(rgb));
    }

    /// Red, green and blue without the alpha.
    constexpr COLORREF ToCOLORREF() const { return RGB(GetRed(), GetGreen(), GetBlue()); }

    static constexpr ARGB MakeARGB(BYTE a, BYTE r, BYTE g, BYTE b)
    {
        return static_cast<ARGB>(a) << 24 | static_cast<ARGB>(r) << 16 | static_cast<ARGB>(g) << 8 | b;
    }

private:
    ARGB m_value;
};

} // namespace Gdiplus
