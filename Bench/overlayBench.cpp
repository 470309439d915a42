// SPDX-License-Identifier: MIT
// A lasso of 100,000 vertices: appending them beside std::deque, and drawing it into an image beside cairo and a Qt
// painter.
#include "overlay/Lasso.h"
#include "support/RatioReporter.h"

#include <VQDraw/VQDraw.h>

#include <algorithm>
#include <deque>
#include <random>

namespace {

using vq::bench::Lasso;
using vq::bench::Vertex;

Lasso makeLasso()
{
    std::minstd_rand random(1);
    const auto step = [&random] { return static_cast<int>(random() % 9) - 4; };
    Lasso lasso;
    Vertex vertex{vq::bench::kWidth / 2, vq::bench::kHeight / 2};
    while (lasso.size() < vq::bench::kVertices) {
        vertex.x = std::clamp(vertex.x + step(), 0, vq::bench::kWidth - 1);
        vertex.y = std::clamp(vertex.y + step(), 0, vq::bench::kHeight - 1);
        lasso.push_back(vertex);
    }
    return lasso;
}

/// What `make()` gives takes all vertices by `append(container, point)`, and goes.
template <typename Make, typename Append>
void addAppending(const std::string& name, const Lasso& lasso, Make make, Append append)
{
    benchmark::RegisterBenchmark(name.c_str(), [=, &lasso](benchmark::State& state) {
        for (auto _ : state) {
            auto container = make();
            for (const Vertex& vertex : lasso) {
                CPoint point(vertex.x, vertex.y);
                append(container, point);
            }
            benchmark::DoNotOptimize(&container);
            benchmark::ClobberMemory();
        }
    })->Unit(benchmark::kMillisecond);
}

void addDeque(const std::string& work, const Lasso& lasso)
{
    addAppending(
        work + "/deque", lasso, [] { return std::deque<CPoint>(); },
        [](std::deque<CPoint>& points, const CPoint& point) { points.push_back(point); });
}

void addLists(const Lasso& lasso)
{
    using Points = CLumpArray<CPoint, const CPoint&>;
    addAppending(
        "Append to a list/VQDraw", lasso, [] { return Points(2048); },
        [](Points& points, const CPoint& point) { points.SetAtGrow(points.GetSize(), point); });
    addDeque("Append to a list", lasso);
    addAppending(
        "Add points to a polygon/VQDraw", lasso, [] { return CVQDragPolygon(); },
        [](CVQDragPolygon& polygon, CPoint& point) { polygon.AddPoint(point); });
    addDeque("Add points to a polygon", lasso);
    addAppending(
        "Drag a polygon/VQDraw", lasso, [] { return CVQDragPolygon(); },
        [](CVQDragPolygon& polygon, CPoint& point) { polygon.Drag(point); });
    addDeque("Drag a polygon", lasso);
}

void addDrawing(const Lasso& lasso)
{
    for (const bool smooth : {true, false})
        benchmark::RegisterBenchmark(vq::bench::nameOfDrawing(smooth, "VQDraw").c_str(), [&lasso, smooth](
                                                                                             benchmark::State& state) {
            CVQDragPolygon polygon;
            for (const Vertex& vertex : lasso) {
                CPoint point(vertex.x, vertex.y);
                polygon.AddPoint(point);
            }
            polygon.SetColor(
                RGB(vq::bench::kColour >> 16 & 0xFF, vq::bench::kColour >> 8 & 0xFF, vq::bench::kColour & 0xFF));
            CVQDIB image(vq::bench::kWidth, vq::bench::kHeight);
            image.Clear(RGB(255, 255, 255));
            image.EnableAntialias(smooth);
            for (auto _ : state)
                polygon.Draw(&image, 0, 0);
        })->Unit(benchmark::kMillisecond);
}

} // namespace

int main(int argc, char** argv)
{
    CVQDIB::InitializeGDIPlus();
    const Lasso lasso = makeLasso();
    addLists(lasso);
    addDrawing(lasso);
    vq::bench::addCairo(lasso);
    vq::bench::addQt(lasso);
    const int result = runWithRatios(argc, argv);
    CVQDIB::ShutdownGDIPlus();
    return result;
}
