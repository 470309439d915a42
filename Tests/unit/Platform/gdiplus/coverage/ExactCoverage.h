// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// How much of every pixel a shape covers, to the precision of double numbers.

#include <cstddef>
#include <vector>

namespace vq::test {

struct Vertex
{
    double x = 0;
    double y = 0;

    friend Vertex operator+(Vertex a, Vertex b) { return {a.x + b.x, a.y + b.y}; }
    friend Vertex operator-(Vertex a, Vertex b) { return {a.x - b.x, a.y - b.y}; }
    friend Vertex operator*(double factor, Vertex a) { return {factor * a.x, factor * a.y}; }
};

/// A closed polygon that does not cross itself, in either direction.
using Contour = std::vector<Vertex>;

/// Areas that lie apart from each other, without holes that lie within them and apart from each other.
struct Outline
{
    std::vector<Contour> areas;
    std::vector<Contour> holes;
};

/// The area that a contour encloses, positive when it turns from x to y.
double areaOf(const Contour& contour);

/// Whether no two sides of a contour meet but neighbours at their corner. Takes quadratic time.
bool isSimple(const Contour& contour);

/// The shares of pixels that are covered, 0 .. 1.
class CoverageMap
{
public:
    CoverageMap(int width, int height)
        : m_width(width), m_height(height), m_shares(static_cast<std::size_t>(width) * static_cast<std::size_t>(height))
    {
    }

    int width() const { return m_width; }
    int height() const { return m_height; }
    double& at(int x, int y) { return m_shares[static_cast<std::size_t>(y * m_width + x)]; }
    double at(int x, int y) const { return m_shares[static_cast<std::size_t>(y * m_width + x)]; }
    double sum() const;

private:
    int m_width;
    int m_height;
    std::vector<double> m_shares;
};

/// What an outline covers of a picture whose pixel (i, j) begins at (i + origin, j + origin) and is 1 wide and high.
CoverageMap exactCoverage(const Outline& outline, int width, int height, double origin = -0.5);

} // namespace vq::test
