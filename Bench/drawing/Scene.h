// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// What the drawing benchmark draws: plain data, the same for everybody. All coordinates are whole pixels, as those of
/// an application that measures on pictures are; pixel (i, j) has its centre at (i, j) for everything but boxes, whose
/// edges lie between pixels.

#include <array>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace vq::bench {

inline constexpr int kWidth = 1920;
inline constexpr int kHeight = 1080;

/// 0xAARRGGBB with straight alpha.
using Argb = std::uint32_t;

struct Point
{
    int x, y;
};

/// One pixel wide, with flat caps.
struct Line
{
    Point from, to;
    Argb colour;
};

struct Disc
{
    Point centre;
    int radius;
    Argb colour;
};

struct Box
{
    int left, top, width, height;
    Argb colour;
};

/// An outline of `kDashes`, which begins at the right and runs clockwise.
struct DashedCircle
{
    Point centre;
    int radius;
    int width;
    Argb colour;
};

/// On and off, in widths of the pen.
inline constexpr std::array<int, 2> kDashes{2, 3};

/// Filled with the colour of the box, then outlined; `corner` is the diameter of the corners' circles.
struct RoundBox
{
    Box box;
    int corner;
    int outlineWidth;
    Argb outline;
};

/// Filled by the even-odd rule.
struct Polygon
{
    std::vector<Point> points;
    Argb colour;
};

/// Of `kFontFamily`; the corner is that of the cell of the first character.
struct Label
{
    Point topLeft;
    std::wstring text;
    std::u16string utf16; ///< the same for those who keep texts this way
    Argb colour;
};

inline constexpr const char* kFontFamily = "DejaVu Sans";
inline constexpr int kFontPixels = 11; ///< to the em

using Shapes = std::variant<std::vector<Line>, std::vector<Disc>, std::vector<Box>, std::vector<DashedCircle>,
                            std::vector<RoundBox>, std::vector<Polygon>, std::vector<Label>>;

struct Scene
{
    std::string name;
    bool smooth;
    Argb background;
    double tolerance;           ///< how far pictures of it may lie apart, see `distance`
    std::vector<Shapes> frames; ///< drawn in turn, one each time
};

template <typename Shape>
bool isMadeOf(const Scene& scene)
{
    return std::holds_alternative<std::vector<Shape>>(scene.frames.front());
}

/// The same scenes at every call.
std::vector<Scene> makeScenes();

} // namespace vq::bench
