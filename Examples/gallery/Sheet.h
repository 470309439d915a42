// SPDX-License-Identifier: MIT
#pragma once

#include "support/Gallery.h"

#include <memory>
#include <string>

inline constexpr wchar_t kFace[] = L"DejaVu Sans";

struct TextStyle
{
    int pixels; ///< to the em
    LONG weight = FW_NORMAL;
    bool italic = false;
    bool underline = false;
    bool strikeout = false;
};

/// A font that can be drawn with wherever its face is installed.
std::unique_ptr<Gdiplus::Font> makeFont(const TextStyle& style);

/// Text from a corner on.
void drawText(Gdiplus::Graphics& graphics, const std::wstring& text, const Gdiplus::Font& font, float x, float y,
              const Gdiplus::Brush& brush);

/// A place to draw in: the middle of the cell of a sheet.
struct Cell
{
    Gdiplus::Graphics& graphics;
    int left, top, width, height;

    int right() const { return left + width; }
    int bottom() const { return top + height; }
    int centreX() const { return left + width / 2; }
    int centreY() const { return top + height / 2; }
    Gdiplus::Rect rect() const { return {left, top, width, height}; }
    Gdiplus::RectF rectF() const
    {
        return {static_cast<float>(left), static_cast<float>(top), static_cast<float>(width),
                static_cast<float>(height)};
    }
    Gdiplus::PointF at(double shareX, double shareY) const
    {
        return {static_cast<float>(left + width * shareX), static_cast<float>(top + height * shareY)};
    }
};

enum class Backdrop { White, Chequered, Transparent };

struct SheetLook
{
    std::string name;
    std::string caption;
    int columns;
    int cellWidth, cellHeight;
    Backdrop backdrop = Backdrop::White;
};

/// A picture of cells in rows, each with its label below.
class Sheet
{
public:
    Sheet(const SheetLook& look, int cells);

    /// The next cell, from left to right.
    Cell next(const std::wstring& label);

    Gdiplus::Graphics& graphics() { return *m_picture.GetGraphics(); }
    CVQDIB& picture() { return m_picture; }

private:
    SheetLook m_look;
    CVQDIB m_picture;
    std::unique_ptr<Gdiplus::Font> m_font;
    int m_cells = 0;
};

/// A sheet with a cell for each sample, labelled with its `name`.
template <typename Samples, typename Draw>
bool addSheet(Gallery& gallery, const SheetLook& look, const Samples& samples, Draw draw)
{
    Sheet sheet(look, static_cast<int>(std::size(samples)));
    sheet.graphics().SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    for (const auto& sample : samples)
        draw(sheet.next(sample.name), sample);
    return gallery.add(sheet.picture(), look.name, look.caption);
}

/// The same with two cells for each: all without smoothing, then all with it.
template <typename Samples, typename Draw>
bool addSheetOfBoth(Gallery& gallery, const SheetLook& look, const Samples& samples, Draw draw)
{
    Sheet sheet(look, 2 * static_cast<int>(std::size(samples)));
    for (const auto mode : {Gdiplus::SmoothingModeNone, Gdiplus::SmoothingModeAntiAlias}) {
        sheet.graphics().SetSmoothingMode(mode);
        for (const auto& sample : samples)
            draw(sheet.next(sample.name), sample);
    }
    return gallery.add(sheet.picture(), look.name, look.caption);
}

/// What members of an image draw, on an image of its own that fills the cell.
struct ImageSample
{
    std::wstring name;
    void (*draw)(CVQDIB& image);
};

/// A sheet with a cell for each sample, opaque where it was not cleared.
template <typename Samples>
bool addImageSheet(Gallery& gallery, const SheetLook& look, const Samples& samples)
{
    Sheet sheet(look, static_cast<int>(std::size(samples)));
    for (const ImageSample& sample : samples) {
        const Cell cell = sheet.next(sample.name);
        CVQDIB image(cell.width, cell.height);
        image.Clear(RGB(255, 255, 255));
        sample.draw(image);
        sheet.picture().Copy(image, cell.left, cell.top);
    }
    return gallery.add(sheet.picture(), look.name, look.caption);
}
