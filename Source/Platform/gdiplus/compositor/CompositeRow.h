// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Rows of pixels composited onto rows of pixels: every drawing operation ends in one of these four loops. Each gives
/// the bits of `composite` in CompositingFormulas.h, pixel by pixel.
///
/// All spans of a call have the same length. A source row is the destination itself or does not overlap it.

#include "Platform/gdiplus/compositor/Blend.h"
#include "Platform/gdiplus/compositor/ColourRun.h"

#include <span>

namespace vq::gdiplus {

/// A row of a picture or of a brush over a row.
void compositeRow(std::span<Pixel> destination, std::span<const Pixel> source, Blend blend);

/// A row of a brush over a row, each pixel covered by coverage / 255.
void compositeRow(std::span<Pixel> destination, std::span<const Pixel> source, std::span<const Channel> coverage,
                  Blend blend);

/// One colour over a run that is covered in full.
void compositeColour(std::span<Pixel> destination, Pixel colour, Blend blend);

/// One colour over a row, each pixel covered by coverage / 255.
void compositeColour(std::span<Pixel> destination, Pixel colour, std::span<const Channel> coverage, Blend blend);

/// One colour over a run of the same coverage.
void compositeColour(std::span<Pixel> destination, Pixel colour, Channel coverage, Blend blend);

/// One colour over many runs that are covered in full, `SourceOver`: what the colour needs is made ready once.
class OverColour
{
public:
    explicit OverColour(Pixel colour) : m_run(colour), m_colour(colour) {}

    Pixel colour() const { return m_colour; }
    void operator()(std::span<Pixel> destination) const;

private:
    ColourRun m_run;
    Pixel m_colour;
};

} // namespace vq::gdiplus
