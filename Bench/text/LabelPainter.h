// SPDX-License-Identifier: MIT
#pragma once

#include "drawing/Picture.h"
#include "drawing/Scene.h"

#include <memory>
#include <string>
#include <vector>

namespace vq::bench {

using Labels = std::vector<Label>;

/// Somebody who writes labels on a picture of kWidth x kHeight pixels.
class LabelPainter
{
public:
    virtual ~LabelPainter() = default;

    virtual void clear(Argb colour) = 0;
    virtual void draw(const Labels& labels) = 0;
    /// The sum of the labels' widths in whole pixels.
    virtual int measure(const Labels& labels) = 0;
    virtual Picture picture() const = 0;
};

/// Where GDI+ puts the pen of a text whose cell has its corner at 0: a sixth of an em to the right, and down by the
/// face's ascent (DejaVu Sans: 1901 of 2048).
inline constexpr double kPenX = kFontPixels / 6.0;
inline constexpr double kPenY = kFontPixels * 1901.0 / 2048.0;

std::unique_ptr<LabelPainter> makeImagePainter();
/// With the shadow under every label.
std::unique_ptr<LabelPainter> makeShadowPainter();
std::unique_ptr<LabelPainter> makeQtPainter();
std::unique_ptr<LabelPainter> makePremultipliedQtPainter();
std::unique_ptr<LabelPainter> makePangoPainter();

} // namespace vq::bench
