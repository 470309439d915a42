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

constexpr unsigned kWordBits = 64;
constexpr int kWordMask = 63;

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

/// A shape goes on below: how far ahead its memory is asked for.
constexpr int kRowsAhead = 4;

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
        painter.expect(x, y + kRowsAhead, length);
        if (coverage == 255)
            return painter.run(x, y, length);
        if (length > kShortRun)
            return painter.run(x, y, length, coverage);
        const Pixel source = withCoverage(colour, coverage);
        for (Pixel& pixel : painter.canvas().run(x, y, length))
            pixel = overPixel<StoredLight>(pixel, source);
    }
};

struct AnyRuns
{
    const Painter& painter;

    void pixel(int x, int y, Channel coverage) const { painter.run(x, y, 1, coverage); }
    void run(int x, int y, int length, Channel coverage) const { painter.run(x, y, length, coverage); }
};

/// The pixels of 0 .. size - 1 that [low, high] touches.
std::pair<int, int> touchedPixels(double low, double high, int size)
{
    const auto pixel = [size](double value) {
        return static_cast<int>(std::clamp(std::floor(value + kCentre), -1.0, static_cast<double>(size)));
    };
    return {std::max(pixel(low), 0), std::min(pixel(high) + 1, size)};
}

} // namespace

/// The strip of the surface that is filled next, and the memory that edges are added to. A value: what an edge needs of
/// it stays in registers.
class SmoothFill::Grid
{
public:
    int left, top, right, bottom; ///< pixels of the surface
    std::size_t stride;           ///< columns in memory, two more than in the strip
    std::size_t words;            ///< of bits in a row
    float* changes;
    std::uint64_t* touched;
    PixelView view;

    int columns() const { return right - left; }
    int rows() const { return bottom - top; }

    /// Adds the part of an edge that lies in the strip, and, as upright, the part to the left of it. What lies to the
    /// right changes nothing in it.
    void addEdge(PointD from, PointD to) const
    {
        double direction = 1;
        if (to.y < from.y) {
            std::swap(from, to);
            direction = -1;
        }
        const double width = columns();
        const double height = rows();
        const PointD corner{left - kCentre, top - kCentre};
        const PointD start = from - corner;
        const PointD end = to - corner;
        if (!(end.y - start.y >= kFlat) || end.y <= 0 || start.y >= height)
            return;
        const auto [least, most] = std::minmax(start.x, end.x);
        if (start.y >= 0 && end.y <= height && least >= 0 && most <= width)
            addInside(start, end, direction);
        else if (least <= width)
            addClipped(start, end, direction);
    }

private:
    struct Row
    {
        float* changes;
        std::uint64_t* touched;

        void add(int column, double change) const
        {
            changes[column] += static_cast<float>(change);
            touched[static_cast<unsigned>(column) / kWordBits] |= std::uint64_t{1} << (column & kWordMask);
        }

        /// An edge within a row: of `height`, of the row's 1, each column that it passes takes its share, and of that
        /// the area to the right of the edge; what is left over goes to the next column, so that it and all that
        /// follow take it whole.
        void addEdge(double xBegin, double xEnd, double height) const
        {
            const double low = std::min(xBegin, xEnd);
            const double high = std::max(xBegin, xEnd);
            const int first = static_cast<int>(low);
            const int last = static_cast<int>(high);
            if (first != last)
                return addAcross(low, high, height);
            const double beyond = height * ((low + high) / 2 - first);
            add(first, height - beyond);
            add(first + 1, beyond);
        }

        /// The covered area of a column, summed up to it: a triangle, then trapezia one wide, then all but a triangle.
        void addAcross(double low, double high, double height) const
        {
            const int first = static_cast<int>(low);
            const int last = static_cast<int>(high);
            const double lowPart = low - first;
            const double highPart = high - last;
            const double perColumn = height / (high - low);
            double before = perColumn * (1 - lowPart) * (1 - lowPart) / 2;
            add(first, before);
            for (int column = first + 1; column < last; ++column) {
                const double area = perColumn * (column - first + 0.5 - lowPart);
                add(column, area - before);
                before = area;
            }
            const double lastArea = height - perColumn * highPart * highPart / 2;
            add(last, lastArea - before);
            add(last + 1, height - lastArea);
        }
    };

    Row row(int index) const
    {
        return {changes + static_cast<std::size_t>(index) * stride, touched + static_cast<std::size_t>(index) * words};
    }

    /// An edge from a higher point to a lower one, within the strip.
    void addInside(PointD from, PointD to, double direction) const
    {
        const double height = to.y - from.y;
        const int firstRow = static_cast<int>(from.y);
        if (to.y <= firstRow + 1)
            return row(firstRow).addEdge(from.x, to.x, height * direction);
        const double slope = (to.x - from.x) / height;
        const double least = std::min(from.x, to.x);
        const double most = std::max(from.x, to.x);
        const int lastRow = std::min(static_cast<int>(to.y), rows() - 1);
        double x = from.x;
        double y = from.y;
        for (int index = firstRow; index <= lastRow; ++index) {
            const double nextY = std::min(to.y, index + 1.0);
            const double nextX = std::min(std::max(from.x + (nextY - from.y) * slope, least), most);
            __builtin_prefetch(view.row(top + index) + left + static_cast<int>(x), 1);
            row(index).addEdge(x, nextX, (nextY - y) * direction);
            x = nextX;
            y = nextY;
        }
    }

    /// An edge that leaves the strip: cut at its upper and lower side, then where it passes its left and right side.
    void addClipped(PointD start, PointD end, double direction) const
    {
        const double width = columns();
        const double height = rows();
        const double slope = (end.x - start.x) / (end.y - start.y);
        const auto xAt = [&](double y) { return start.x + (y - start.y) * slope; };
        PointD a = start.y < 0 ? PointD{xAt(0), 0} : start;
        const PointD b = end.y > height ? PointD{xAt(height), height} : end;
        const auto addUntil = [&](PointD point) {
            if (point.y > a.y && std::max(a.x, point.x) <= width)
                addInside({std::max(a.x, 0.0), a.y}, {std::max(point.x, 0.0), point.y}, direction);
            a = point;
        };
        const auto passes = [&](double x) { return std::min(a.x, b.x) < x && x < std::max(a.x, b.x); };
        const auto cutAt = [&](double x) {
            if (passes(x))
                addUntil({x, std::clamp(start.y + (x - start.x) / slope, a.y, b.y)});
        };
        const bool rightwards = b.x > a.x;
        cutAt(rightwards ? 0 : width);
        cutAt(rightwards ? width : 0);
        addUntil(b);
    }
};

void SmoothFill::fill(const Polylines& shape, FillRule rule, const Painter& painter)
{
    const PixelView& view = painter.canvas().view;
    const Bounds bounds = shape.bounds();
    const auto [left, right] = touchedPixels(bounds.left, bounds.right, view.width);
    const auto [top, bottom] = touchedPixels(bounds.top, bounds.bottom, view.height);
    if (left >= right || top >= bottom)
        return;
    const std::size_t stride = static_cast<std::size_t>(right - left) + 2;
    const std::size_t words = (stride + kWordBits - 1) / kWordBits;
    const int rows = std::min(std::max(kStripCells / (right - left), kFewestRows), bottom - top);
    m_changes.resize(std::max(m_changes.size(), stride * static_cast<std::size_t>(rows)));
    m_touched.resize(std::max(m_touched.size(), words * static_cast<std::size_t>(rows)));
    Grid grid{left, top, right, bottom, stride, words, m_changes.data(), m_touched.data(), view};
    for (; grid.top < bottom; grid.top = grid.bottom) {
        grid.bottom = std::min(grid.top + rows, bottom);
        fillStrip(shape, rule, painter, grid);
    }
}

void SmoothFill::fillStrip(const Polylines& shape, FillRule rule, const Painter& painter, const Grid& grid)
{
    const Grid edges = grid;
    for (const Polylines::Figure& figure : shape.figures()) {
        const auto points = shape.points(figure);
        PointD from = points.back();
        for (const PointD& to : points) {
            edges.addEdge(from, to);
            from = to;
        }
    }
    const auto sweepWith = [&](const auto& runs) {
        if (rule == FillRule::Alternate)
            sweep<FillRule::Alternate>(runs, grid);
        else
            sweep<FillRule::Winding>(runs, grid);
    };
    if (const auto colour = painter.plainColour())
        sweepWith(PlainRuns{painter, *colour});
    else
        sweepWith(AnyRuns{painter});
}

template <FillRule rule, typename Runs>
void SmoothFill::sweep(const Runs& runs, const Grid& grid)
{
    const int columns = grid.columns();
    float* changes = grid.changes;
    std::uint64_t* touched = grid.touched;
    for (int y = grid.top; y < grid.bottom; ++y, changes += grid.stride, touched += grid.words) {
        float area = 0;
        int done = 0; // columns
        const auto runUntil = [&](int column) {
            const int end = std::min(column, columns);
            if (done < end)
                if (const Channel coverage = toCoverage<rule>(area))
                    runs.run(grid.left + done, y, end - done, coverage);
        };
        for (std::size_t word = 0; word < grid.words; ++word) {
            for (std::uint64_t bits = std::exchange(touched[word], 0); bits != 0; bits &= bits - 1) {
                const int column = static_cast<int>(word * kWordBits) + std::countr_zero(bits);
                runUntil(column);
                area += std::exchange(changes[column], 0.0F);
                done = column + 1;
                if (column < columns)
                    if (const Channel coverage = toCoverage<rule>(area))
                        runs.pixel(grid.left + column, y, coverage);
            }
        }
        runUntil(columns);
    }
}

} // namespace vq::gdiplus
