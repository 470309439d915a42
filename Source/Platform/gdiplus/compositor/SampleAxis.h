// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Where the pixels of a target find their source, along one axis.

#include <cstdint>
#include <optional>

namespace vq::gdiplus {

/// A stretch of pixel positions; a negative length runs backwards and mirrors.
struct Extent
{
    float position;
    float length;
};

/// A source position in steps of 1/65536 of a pixel: between the centres of pixels `index` and `index + 1`.
struct SamplePosition
{
    int index;
    std::uint16_t fraction;
};

/// How much of a source pixel pair lies inside the image.
enum class Reach {
    Outside, ///< nothing: the sample is transparent
    Edge,    ///< one of the two at most
    Inside   ///< both
};

/// Maps the target pixels `begin` .. `end` - 1 of a canvas to source positions. Positions beyond the image are drawn in
/// to the places -1 and `imageLength`, where everything is transparent, so that no rectangle is too large.
class SampleAxis
{
public:
    /// Empty when nothing is drawn: a length is 0, a number is not finite, or the target misses the canvas.
    static std::optional<SampleAxis> create(Extent target, Extent source, int canvasLength, int imageLength,
                                            bool halfPixelOffset);

    int begin() const { return m_begin; }
    int end() const { return m_end; }

    SamplePosition at(int pixel) const;
    Reach reachAt(int pixel) const;

    /// The source pixel nearest to the position, halves upwards; -1 or `imageLength` outside.
    int nearestAt(int pixel) const;

    /// Every position is the centre of a source pixel.
    bool hasWholePositions() const;

    /// The source pixels follow each other as the target pixels do.
    bool isUnscaled() const { return m_scale == 1 && hasWholePositions(); }

private:
    SampleAxis() = default;

    std::int64_t fixedAt(int pixel) const;

    double m_target = 0;
    double m_source = 0;
    double m_scale = 0;
    double m_centre = 0; // of a pixel, from its position
    int m_begin = 0;
    int m_end = 0;
    int m_imageLength = 0;
};

} // namespace vq::gdiplus
