// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/brushes/GradientAxis.h"
#include "Platform/gdiplus/brushes/GradientRamp.h"

namespace vq::gdiplus {

/// What comes before and after a gradient.
enum class Repetition {
    Same,    ///< the gradient again: where it ends it starts
    Mirrored ///< every other time backwards
};

/// A linear gradient. Each channel is the nearest integer of its real value; a value less than 2^-34 below a half
/// counts as the half, which goes upwards. That is exact between points on whole pixels up to some thousand pixels
/// apart.
class GradientShader
{
public:
    /// The axis is usable and counts in pixels; the ramp has to outlive the shader.
    GradientShader(const GradientAxis& axis, const GradientRamp& ramp, Repetition repetition);

    /// The colours of the pixels from (x, y) to the right.
    void shade(std::span<Pixel> row, int x, int y) const;

private:
    /// Pixels whose colours change evenly.
    struct Run
    {
        const GradientPiece* piece;
        double position; ///< of the first pixel, 0 .. 1
        double step;     ///< from each pixel to the next
        double length;   ///< how many pixels, at least 1; may be huge or infinite
    };

    Run runAt(double distance) const;
    void shade(std::span<Pixel> row, const Run& run) const;

    GradientAxis m_axis;
    const GradientRamp* m_ramp;
    double m_step; ///< in position, from each pixel to the one on its right
    bool m_isMirrored;
};

} // namespace vq::gdiplus
