// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/text/Text.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace vq::test {

using namespace vq::gdiplus;

/// DejaVu Sans is what the tests may rely on; its tables: 2048 units to the em, winAscent 1901, winDescent 483.
inline constexpr std::u16string_view kSans = u"DejaVu Sans";

inline FontDescription described(std::u16string_view face, float em)
{
    FontDescription description;
    std::ranges::copy(face, description.face.begin());
    description.size = em;
    return description;
}

inline std::shared_ptr<const Font> sans(float em)
{
    return openFont(described(kSans, em));
}

inline constexpr FloatRect kNoRect{0, 0, 0, 0};

inline TextMeasure measured(const Font& font, std::wstring_view text, const FloatRect& layout = kNoRect,
                            const TextFormat& format = {})
{
    return measureText(font, text, layout, format).value();
}

inline float widthOf(const Font& font, std::wstring_view text)
{
    return measured(font, text).bounds.width;
}

/// Takes down what is drawn.
class Recorder final : public GlyphSink
{
public:
    struct Shape
    {
        int x, y, width, height;
        std::vector<Channel> coverage;

        /// Shapes are the same wherever they stand.
        bool looksLike(const Shape& other) const
        {
            return width == other.width && height == other.height && coverage == other.coverage;
        }
    };
    struct Picture
    {
        int x, y, width, height;
        std::vector<Pixel> pixels;
    };

    std::vector<Shape> shapes;
    std::vector<Picture> pictures;
    std::vector<PixelRect> strokes;

    void glyph(const GlyphCoverage& glyph) noexcept override
    {
        Shape shape{glyph.x, glyph.y, glyph.width, glyph.height, {}};
        for (int y = 0; y < glyph.height; ++y)
            shape.coverage.insert(shape.coverage.end(), glyph.row(y), glyph.row(y) + glyph.width);
        shapes.push_back(std::move(shape));
    }

    void colourGlyph(int x, int y, const ConstPixelView& pixels) noexcept override
    {
        Picture picture{x, y, pixels.width, pixels.height, {}};
        for (int row = 0; row < pixels.height; ++row)
            picture.pixels.insert(picture.pixels.end(), pixels.row(row), pixels.row(row) + pixels.width);
        pictures.push_back(std::move(picture));
    }

    void rectangle(const PixelRect& rectangle) noexcept override { strokes.push_back(rectangle); }

    /// The smallest rectangle that holds every covered pixel of the shapes; empty when there is none.
    PixelRect covered() const
    {
        PixelRect box{1 << 20, 1 << 20, -(1 << 20), -(1 << 20)};
        for (const Shape& shape : shapes)
            for (int y = 0; y < shape.height; ++y)
                for (int x = 0; x < shape.width; ++x)
                    if (shape.coverage[static_cast<std::size_t>(y * shape.width + x)] != 0)
                        box = {std::min(box.left, shape.x + x), std::min(box.top, shape.y + y),
                               std::max(box.right, shape.x + x + 1), std::max(box.bottom, shape.y + y + 1)};
        return box;
    }

    std::size_t partlyCovered() const
    {
        std::size_t count = 0;
        for (const Shape& shape : shapes)
            count += static_cast<std::size_t>(
                std::ranges::count_if(shape.coverage, [](Channel c) { return c != 0 && c != 255; }));
        return count;
    }
};

inline constexpr PixelRect kCanvas{0, 0, 1000, 1000};

inline Recorder drawn(const Font& font, std::wstring_view text, const FloatRect& layout = kNoRect,
                      const TextFormat& format = {}, GlyphRendering rendering = GlyphRendering::TwoLevel)
{
    Recorder recorder;
    drawText(recorder, font, text, layout, format, {rendering, 4, kCanvas});
    return recorder;
}

} // namespace vq::test
