// SPDX-License-Identifier: MIT
#include "drawing/Scene.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

namespace vq::bench {

namespace {

constexpr Argb kOpaque = 0xFF000000;
constexpr Argb kHalf = 0x80000000;
constexpr Argb kWhite = 0xFFFFFFFF;
constexpr Argb kTransparent = 0;

/// Numbers that do not depend on the standard library's distributions.
class Dice
{
public:
    explicit Dice(unsigned seed) : m_engine(seed) {}

    int between(int least, int most)
    {
        return least + static_cast<int>(m_engine() % static_cast<unsigned>(most - least + 1));
    }
    /// A colour that is seen on white and on black.
    Argb colour(Argb alpha)
    {
        const auto channel = [this] { return static_cast<Argb>(between(40, 200)); };
        const Argb red = channel();
        const Argb green = channel();
        return alpha | red << 16 | green << 8 | channel();
    }
    /// A point with room to all sides.
    Point point(int margin) { return {between(margin, kWidth - 1 - margin), between(margin, kHeight - 1 - margin)}; }

private:
    std::minstd_rand m_engine;
};

template <typename Make>
auto repeated(int count, unsigned seed, Make make)
{
    Dice dice(seed);
    std::vector<decltype(make(dice))> shapes;
    for (int i = 0; i < count; ++i)
        shapes.push_back(make(dice));
    return shapes;
}

Line line(Dice& dice)
{
    const Point from = dice.point(2);
    return {from, dice.point(2), dice.colour(kOpaque)};
}

Disc disc(Dice& dice)
{
    const int radius = dice.between(10, 100);
    return {dice.point(radius + 2), radius, dice.colour(kHalf)};
}

Box box(Dice& dice)
{
    const int width = dice.between(4, 40);
    const int height = dice.between(4, 40);
    const Point topLeft = dice.point(40);
    return {topLeft.x, topLeft.y, width, height, dice.colour(kHalf)};
}

DashedCircle dashedCircle(Dice& dice)
{
    const int radius = dice.between(10, 100);
    return {dice.point(radius + 4), radius, dice.between(1, 3), dice.colour(kOpaque)};
}

RoundBox roundBox(Dice& dice)
{
    const int width = dice.between(40, 160);
    const int height = dice.between(20, 60);
    const Point topLeft = dice.point(162);
    return {{topLeft.x, topLeft.y, width, height, dice.colour(kHalf)}, 12, 1, dice.colour(kOpaque)};
}

/// Goes round seven times, nearer to the centre and farther from it, and so crosses itself over and over.
Polygon polygon(Dice& dice)
{
    constexpr int kVertices = 1000;
    constexpr int kTurns = 7;
    const int radius = dice.between(80, 200);
    const Point centre = dice.point(radius + 2);
    Polygon polygon{{}, dice.colour(kHalf)};
    for (int i = 0; i < kVertices; ++i) {
        const double angle = 2 * std::numbers::pi * kTurns * i / kVertices;
        const int distance = dice.between(radius / 2, radius);
        polygon.points.push_back({centre.x + static_cast<int>(std::lround(distance * std::cos(angle))),
                                  centre.y + static_cast<int>(std::lround(distance * std::sin(angle)))});
    }
    return polygon;
}

/// A number with three decimals, as measurements are labelled.
Label label(Dice& dice)
{
    Label label{dice.point(60), std::to_wstring(dice.between(100, 999)) + L'.', {}, dice.colour(kOpaque)};
    label.text += std::to_wstring(dice.between(100, 999));
    label.utf16.assign(label.text.begin(), label.text.end());
    return label;
}

/// More texts than anybody keeps: every frame has new ones, as while a measurement goes on.
std::vector<Shapes> framesOfNewLabels()
{
    constexpr unsigned kFrames = 32;
    std::vector<Shapes> frames;
    for (unsigned frame = 0; frame < kFrames; ++frame)
        frames.emplace_back(repeated(2000, 100 + frame, label));
    return frames;
}

} // namespace

std::vector<Scene> makeScenes()
{
    const auto lines = repeated(2000, 1, line);
    const auto discs = repeated(300, 2, disc);
    const auto labels = repeated(2000, 7, label);
    // Renderers agree on areas; they do not on the pixels of thin lines, nor on hinting and the contrast of text.
    constexpr double kArea = 0.04;
    constexpr double kThin = 0.1;
    constexpr double kText = 0.3;
    return {
        {"lines", true, kWhite, kThin, {lines}},
        {"linesOnTransparent", true, kTransparent, kThin, {lines}},
        {"aliasedLines", false, kWhite, kThin, {lines}},
        {"discs", true, kWhite, kArea, {discs}},
        {"discsOnTransparent", true, kTransparent, kArea, {discs}},
        {"boxes", false, kWhite, kArea, {repeated(2000, 3, box)}},
        {"dashedCircles", true, kWhite, kArea, {repeated(500, 4, dashedCircle)}},
        {"roundBoxes", true, kWhite, kArea, {repeated(500, 5, roundBox)}},
        {"polygons", true, kWhite, kArea, {repeated(20, 6, polygon)}},
        {"labels", true, kWhite, kText, {labels}},
        {"newLabels", true, kWhite, kText, framesOfNewLabels()},
    };
}

} // namespace vq::bench
