// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/Canvas.h"
#include "Platform/gdiplus/brushes/Shader.h"

#include <optional>

namespace vq::gdiplus {

/// Puts a brush on runs of a surface: where shapes and glyphs, which know coverage, meet shaders, which know colours.
/// All runs lie inside the surface. A pixel that is given twice is composited twice.
class Painter
{
public:
    Painter(const Canvas& canvas, const Shader& shader);

    const Canvas& canvas() const { return m_canvas; }

    /// The brush, where painting is nothing but one colour over pixels with alpha: whoever knows it may composite
    /// single pixels without calling here.
    std::optional<Pixel> plainColour() const;

    /// A run that is covered in full.
    void run(int x, int y, int length) const
    {
        if (m_plain)
            (*m_plain)(m_canvas.run(x, y, length));
        else
            anyRun(x, y, length);
    }
    /// Whether a pixel that is painted twice in full is as if it were painted once.
    bool canRepeat() const;

    /// The memory of a run that is painted soon: of rows below, which the processor does not foresee.
    void expect(int x, int y, int length) const
    {
        constexpr int kPixelsFetched = 16;
        if (y >= m_canvas.view.height)
            return;
        const Pixel* pixels = m_canvas.view.row(y) + x;
        for (int i = 0; i < length; i += kPixelsFetched)
            __builtin_prefetch(pixels + i, 1);
    }

    /// A run of the same coverage, in 255ths.
    void run(int x, int y, int length, Channel coverage) const;
    /// A run with a coverage for each pixel.
    void run(int x, int y, std::span<const Channel> coverage) const;
    /// A run of a picture, straight alpha; what the brush adds is its alpha.
    void picture(int x, int y, std::span<const Pixel> pixels) const;

private:
    void anyRun(int x, int y, int length) const;
    template <typename Solid, typename Shaded>
    void paint(int x, int y, std::size_t length, Solid solid, Shaded shaded) const;

    const Canvas& m_canvas;
    const Shader& m_shader;
    std::optional<OverColour> m_plain; ///< of a plain colour
};

} // namespace vq::gdiplus
