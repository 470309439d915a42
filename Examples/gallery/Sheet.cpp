// SPDX-License-Identifier: MIT
#include "gallery/Sheet.h"

#include <algorithm>
#include <string_view>

namespace {

constexpr int kMargin = 10;
constexpr int kLabelHeight = 16;

void drawChequers(Gdiplus::Graphics& graphics, int width, int height)
{
    constexpr int kSquare = 8;
    const Gdiplus::SolidBrush light(Gdiplus::Color(255, 255, 255));
    const Gdiplus::SolidBrush dark(Gdiplus::Color(204, 204, 204));
    graphics.FillRectangle(&light, 0, 0, width, height);
    for (int y = 0; y < height; y += kSquare)
        for (int x = y / kSquare % 2 * kSquare; x < width; x += 2 * kSquare)
            graphics.FillRectangle(&dark, x, y, kSquare, kSquare);
}

int rowsFor(const SheetLook& look, int cells)
{
    return (cells + look.columns - 1) / look.columns;
}

} // namespace

std::unique_ptr<Gdiplus::Font> makeFont(const TextStyle& style)
{
    LOGFONTW font{};
    font.lfHeight = -style.pixels;
    font.lfWeight = style.weight;
    font.lfItalic = style.italic;
    font.lfUnderline = style.underline;
    font.lfStrikeOut = style.strikeout;
    std::ranges::copy(std::wstring_view(kFace), font.lfFaceName);
    CDC context;
    context.CreateCompatibleDC(nullptr);
    return std::make_unique<Gdiplus::Font>(context.m_hDC, &font);
}

void drawText(Gdiplus::Graphics& graphics, const std::wstring& text, const Gdiplus::Font& font, float x, float y,
              const Gdiplus::Brush& brush)
{
    graphics.DrawString(text.c_str(), static_cast<INT>(text.size()), &font, Gdiplus::PointF(x, y), &brush);
}

Sheet::Sheet(const SheetLook& look, int cells)
    : m_look(look), m_picture(look.columns * look.cellWidth, rowsFor(look, cells) * look.cellHeight),
      m_font(makeFont({10}))
{
    if (look.backdrop == Backdrop::White)
        m_picture.Clear(RGB(255, 255, 255), BYTE{255});
    if (look.backdrop == Backdrop::Chequered)
        drawChequers(graphics(), m_picture.GetWidth(), m_picture.GetHeight());
}

Cell Sheet::next(const std::wstring& label)
{
    const int left = m_cells % m_look.columns * m_look.cellWidth;
    const int top = m_cells / m_look.columns * m_look.cellHeight;
    ++m_cells;
    const Gdiplus::SolidBrush grey(Gdiplus::Color(96, 96, 96));
    const int labelTop = top + m_look.cellHeight - kLabelHeight;
    graphics().SetTextRenderingHint(Gdiplus::TextRenderingHintAntiAliasGridFit);
    drawText(graphics(), label, *m_font, static_cast<float>(left + kMargin - 2), static_cast<float>(labelTop), grey);
    return {graphics(), left + kMargin, top + kMargin, m_look.cellWidth - 2 * kMargin,
            m_look.cellHeight - kLabelHeight - 2 * kMargin};
}
