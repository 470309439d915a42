// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/raster/SmoothFill.h"

#include "Platform/gdiplus/compositor/CompositePixel.h"

#include <bit>
#include <utility>

namespace vq::gdiplus {
namespace {

constexpr double kCentre = 0.5; // the grid's pixel i covers [i, i + 1)

/// Cells of the grid that stay in a processor's second cache together with the pixels below them.
constexpr int kStripCells = 1 << 16;
constexpr int kFewestRows = 16;

/// Edges lower than this cover nothing that could be seen.
constexpr double kFlat = 1e-9;

constexpr std::size_t kWordBits = 64;

/// Runs up to this length, which the edges of shapes are made of, are composited without the way through a row.
constexpr int kShortRun = 8;

/// Winding counts areas up and down; a pixel that is covered more than once is full.
template <FillRule rule>
Channel toCoverage(float area)
{
    float covered = std::abs(area);
    if constexpr (rule == FillRule::Alternate) {
        covered -= 2 * static_cast<float>(static_cast<int>(covered / 2));
        covered = std::min(covered, 2 - covered);
    }
    return static_cast<Channel>(static_cast<int>(std::min(covered, 1.0F) * 255 + 0.5F));
}

/// One colour over pixels with alpha.
struct PlainRuns
{
    const Painter& painter;
    Pixel colour;

    void pixel(int x, int y, Channel coverage) const
    {
        Pixel& pixel = painter.canvas().view.row(y)[x];
        pixel = overPixel<StoredLight>(pixel, withCoverage(colour, coverage));
    }

    void run(int x, int y, int length, Channel coverage) const
    {
        expectBelow(x, y, length);
        if (length > kShortRun)
            return painter.run(x, y, length, coverage);
        const Pixel source = withCoverage(colour, coverage);
        for (Pixel& pixel : painter.canvas().run(x, y, length))
            pixel = overPixel<StoredLight>(pixel, source);
    }

    /// A shape goes on a few rows below, in memory that the processor does not foresee.
    void expectBelow(int x, int y, int length) const
    {
        constexpr int kRowsAhead = 4;
        constexpr int kPixelsFetched = 16;
        const PixelView& view = painter.canvas().view;
        if (y + kRowsAhead >= view.height)
            return;
        const Pixel* below = view.row(y + kRowsAhead) + x;
        for (int i = 0; i < length; i += kPixelsFetched)
            __builtin_prefetch(below + i, 1);
    }
};

struct AnyRuns
{
    const Painter& painter;

    void pixel(int x, int y, Channel coverage) const { painter.run(x, y, 1, coverage); }
    void run(int x, int y, int length, Channel coverage) const { painter.run(x, y, length, coverage); }
};

/// The pixels of 0 .. size - 1 that [low, high] touches.
std::pair<int, int> touched(double low, double high, int size)
{
    const auto pixel = [size](double value) {
        return static_cast<int>(std::clamp(std::floor(value + kCentre), -1.0, static_cast<double>(size)));
    };
    return {std::max(pixel(low), 0), std::min(pixel(high) + 1, size)};
}

} // namespace

void SmoothFill::fill(const Polylines& shape, FillRule rule, const Painter& painter)
{
    const PixelView& view = painter.canvas().view;
    const Bounds bounds = shape.bounds();
    const auto [left, right] = touched(bounds.left, bounds.right, view.width);
    const auto [top, bottom] = touched(bounds.top, bounds.bottom, view.height);
    if (left >= right || top >= bottom)
        return;
    m_columns = static_cast<std::size_t>(right - left) + 2;
    m_words = (m_columns + kWordBits - 1) / kWordBits;
    const int rows = std::min(std::max(kStripCells / (right - left), kFewestRows), bottom - top);
    m_changes.resize(std::max(m_changes.size(), m_columns * static_cast<std::size_t>(rows)));
    m_touched.resize(std::max(m_touched.size(), m_words * static_cast<std::size_t>(rows)));
    for (int first = top; first < bottom; first += rows) {
        m_strip = {left, first, right, std::min(first + rows, bottom)};
        fillStrip(shape, rule, painter);
    }
}

void SmoothFill::fillStrip(const Polylines& shape, FillRule rule, const Painter& painter)
{
    for (const Polylines::Figure& figure : shape.figures()) {
        const auto points = shape.points(figure);
        PointD from = points.back();
        for (const PointD& to : points) {
            addEdge(from, to, painter.canvas().view);
            from = to;
        }
    }
    const auto sweepWith = [&](const auto& runs) {
        if (rule == FillRule::Alternate)
            sweep<FillRule::Alternate>(runs);
        else
            sweep<FillRule::Winding>(runs);
    };
    if (const auto colour = painter.plainColour())
        sweepWith(PlainRuns{painter, *colour});
    else
        sweepWith(AnyRuns{painter});
}

/// Adds the part of an edge that lies in the strip, and, as upright, the part to the left of it. What lies to the right
/// changes nothing in it.
void SmoothFill::addEdge(PointD from, PointD to, const PixelView& view)
{
    const double direction = to.y > from.y ? 1 : -1;
    if (direction < 0)
        std::swap(from, to);
    const double height = to.y - from.y;
    const double rows = m_strip.bottom - m_strip.top;
    const double columns = m_strip.right - m_strip.left;
    const PointD corner{m_strip.left - kCentre, m_strip.top - kCentre};
    const PointD start = from - corner;
    const PointD end = to - corner;
    if (height < kFlat || end.y <= 0 || start.y >= rows)
        return;
    if (start.y >= 0 && end.y <= rows && std::min(start.x, end.x) >= 0 && std::max(start.x, end.x) <= columns)
        return addPart(start, end, direction, view);
    const double slope = (to.x - from.x) / height;
    const auto xAt = [&](double y) { return start.x + (y - start.y) * slope; };
    const auto yAt = [&](double x) { return start.y + (x - start.x) / slope; };
    PointD a = start.y < 0 ? PointD{xAt(0), 0} : start;
    PointD b = end.y > rows ? PointD{xAt(rows), rows} : end;
    // From the upper end to the lower one, cut where the edge enters or leaves the columns.
    const auto addUntil = [&](double x) {
        const PointD cut{x, std::clamp(yAt(x), a.y, b.y)};
        addPart(a, cut, direction, view);
        a = cut;
    };
    if (std::min(a.x, b.x) < 0 && std::max(a.x, b.x) > 0)
        addUntil(a.x < b.x || a.x <= columns ? 0 : columns);
    if (std::min(a.x, b.x) < columns && std::max(a.x, b.x) > columns)
        addUntil(columns);
    if (std::min(a.x, b.x) < 0 && std::max(a.x, b.x) > 0)
        addUntil(0);
    addPart(a, b, direction, view);
}

/// An edge from a higher point to a lower one, on one side of each of the strip's sides.
void SmoothFill::addPart(PointD from, PointD to, double direction, const PixelView& view)
{
    const double columns = m_strip.right - m_strip.left;
    const double height = to.y - from.y;
    if (!(height > 0) || std::max(from.x, to.x) > columns)
        return;
    const double begin = std::max(from.x, 0.0);
    const double end = std::max(to.x, 0.0);
    const int firstRow = static_cast<int>(from.y);
    if (to.y <= firstRow + 1.0)
        return addAcrossRow(begin, end, height * direction, static_cast<std::size_t>(firstRow));
    const double slope = (end - begin) / height;
    const auto [least, most] = std::minmax(begin, end);
    const int lastRow = std::min(static_cast<int>(to.y), m_strip.bottom - m_strip.top - 1);
    double x = begin;
    double y = from.y;
    for (int row = firstRow; row <= lastRow; ++row) {
        const double nextY = std::min(to.y, row + 1.0);
        const double nextX = std::clamp(begin + (nextY - from.y) * slope, least, most);
        __builtin_prefetch(view.row(m_strip.top + row) + m_strip.left + static_cast<int>(x), 1);
        addAcrossRow(x, nextX, (nextY - y) * direction, static_cast<std::size_t>(row));
        x = nextX;
        y = nextY;
    }
}

/// An edge within a row: of `height`, of the row's 1, each column that it passes takes its share, and of that the area
/// to the right of the edge; what is left over goes to the next column, so that it and all that follow take it whole.
void SmoothFill::addAcrossRow(double xBegin, double xEnd, double height, std::size_t row)
{
    const auto [low, high] = std::minmax(xBegin, xEnd);
    const auto first = static_cast<std::size_t>(low);
    const auto last = static_cast<std::size_t>(high);
    const double lowPart = low - static_cast<double>(first);
    const double highPart = high - static_cast<double>(last);
    if (first == last) {
        const double beyond = height * (lowPart + highPart) / 2;
        add(row, first, height - beyond);
        add(row, first + 1, beyond);
        return;
    }
    // The covered area of a column, summed up to it: a triangle, then trapezia one wide, then all but a triangle.
    const double perColumn = height / (high - low);
    const double firstArea = perColumn * (1 - lowPart) * (1 - lowPart) / 2;
    double before = firstArea;
    add(row, first, firstArea);
    for (std::size_t column = first + 1; column < last; ++column) {
        const double area = perColumn * (static_cast<double>(column - first) + 0.5 - lowPart);
        add(row, column, area - before);
        before = area;
    }
    const double lastArea = height - perColumn * highPart * highPart / 2;
    add(row, last, lastArea - before);
    add(row, last + 1, height - lastArea);
}

void SmoothFill::add(std::size_t row, std::size_t column, double change)
{
    m_changes[row * m_columns + column] += static_cast<float>(change);
    m_touched[row * m_words + column / kWordBits] |= std::uint64_t{1} << column % kWordBits;
}

template <FillRule rule, typename Runs>
void SmoothFill::sweep(const Runs& runs)
{
    const int columns = m_strip.right - m_strip.left;
    float* changes = m_changes.data();
    std::uint64_t* touchedWords = m_touched.data();
    for (int y = m_strip.top; y < m_strip.bottom; ++y, changes += m_columns, touchedWords += m_words) {
        float area = 0;
        int done = 0; // columns
        const auto runUntil = [&](int column) {
            const int end = std::min(column, columns);
            if (done < end)
                if (const Channel coverage = toCoverage<rule>(area))
                    runs.run(m_strip.left + done, y, end - done, coverage);
        };
        for (std::size_t word = 0; word < m_words; ++word) {
            for (std::uint64_t bits = std::exchange(touchedWords[word], 0); bits != 0; bits &= bits - 1) {
                const int column = static_cast<int>(word * kWordBits) + std::countr_zero(bits);
                runUntil(column);
                area += std::exchange(changes[column], 0.0F);
                done = column + 1;
                if (column < columns)
                    if (const Channel coverage = toCoverage<rule>(area))
                        runs.pixel(m_strip.left + column, y, coverage);
            }
        }
        runUntil(columns);
    }
}

} // namespace vq::gdiplus
