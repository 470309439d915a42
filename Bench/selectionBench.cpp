// SPDX-License-Identifier: MIT
// Which of a million points a lasso of 2048 vertices takes, with and without a depth buffer, and simpler shapes; and
// the lasso beside a plain test of every point with every side, which takes too long for more than some points.
#include "support/RatioReporter.h"

#include <vqSelection/VQSelection.h>

#include <cmath>
#include <numbers>
#include <random>

namespace {

constexpr std::size_t kPoints = 1000000;
constexpr std::size_t kSomePoints = 10000;
constexpr std::size_t kVertices = 2048;
constexpr int kWidth = 1920;
constexpr int kHeight = 1080;

struct Scene
{
    std::vector<float> points;
    std::vector<double> lasso; // x, y
    std::vector<float> depths;
    SVQGLVariables view{};
};

/// The eye is four units from the middle of a cube of two.
void setView(SVQGLVariables& view)
{
    constexpr double kNear = 1;
    constexpr double kFar = 10;
    constexpr double kFocus = 2.5;
    for (const int diagonal : {0, 5, 10, 15})
        view.m_dModelView[diagonal] = 1;
    view.m_dModelView[14] = -4;
    view.m_dProjection[0] = kFocus * kHeight / kWidth;
    view.m_dProjection[5] = kFocus;
    view.m_dProjection[10] = -(kFar + kNear) / (kFar - kNear);
    view.m_dProjection[11] = -1;
    view.m_dProjection[14] = -2 * kFar * kNear / (kFar - kNear);
    view.m_iViewport[2] = kWidth;
    view.m_iViewport[3] = kHeight;
}

Scene makeScene()
{
    std::minstd_rand random(1);
    std::uniform_real_distribution<float> place(-1, 1);
    Scene scene;
    for (std::size_t i = 0; i < 3 * kPoints; ++i)
        scene.points.push_back(place(random));
    for (std::size_t i = 0; i < kVertices; ++i) {
        const double angle = 2 * std::numbers::pi * static_cast<double>(i) / kVertices;
        const double radius = 350 + 60 * std::sin(17 * angle) + 3 * place(random);
        scene.lasso.push_back(std::round(kWidth / 2.0 + 1.3 * radius * std::cos(angle)));
        scene.lasso.push_back(std::round(kHeight / 2.0 + radius * std::sin(angle)));
    }
    scene.depths.assign(std::size_t{kWidth} * kHeight, 0.83F); // half of the points are hidden
    setView(scene.view);
    return scene;
}

void addOurs(const std::string& work, const Scene& scene, const CVQSelectionShape& shape, std::size_t count,
             const float* depths = nullptr)
{
    benchmark::RegisterBenchmark((work + "/VQDraw").c_str(), [=, &scene](benchmark::State& state) {
        const auto view = SVQSelectionView::Of(scene.view, depths);
        CVQSelectionSet set(count);
        for (auto _ : state)
            CVQSelection::Select(shape, view, {scene.points.data(), count}, VQ_SELECT_REPLACE, set);
    })->Unit(benchmark::kMillisecond);
}

/// What a loop without any structure does.
bool isInside(const std::vector<double>& lasso, double x, double y)
{
    bool inside = false;
    for (std::size_t i = 0, before = lasso.size() - 2; i < lasso.size(); before = i, i += 2)
        if ((lasso[i + 1] > y) != (lasso[before + 1] > y) &&
            x < (lasso[before] - lasso[i]) * (y - lasso[i + 1]) / (lasso[before + 1] - lasso[i + 1]) + lasso[i])
            inside = !inside;
    return inside;
}

void addPlain(const std::string& work, const Scene& scene, std::size_t count)
{
    benchmark::RegisterBenchmark((work + "/plain").c_str(), [=, &scene](benchmark::State& state) {
        const auto view = SVQSelectionView::Of(scene.view);
        std::vector<bool> selected(count);
        for (auto _ : state)
            for (std::size_t i = 0; i < count; ++i) {
                double at[3];
                selected[i] =
                    CVQSelection::Project(view, &scene.points[3 * i], at) && isInside(scene.lasso, at[0], at[1]);
            }
    })->Unit(benchmark::kMillisecond);
}

} // namespace

int main(int argc, char** argv)
{
    const Scene scene = makeScene();
    const auto lasso = CVQSelectionShape::Polygon(scene.lasso.data(), kVertices);
    addOurs("Lasso, 10,000 points", scene, lasso, kSomePoints);
    addPlain("Lasso, 10,000 points", scene, kSomePoints);
    addOurs("Lasso, 1,000,000 points", scene, lasso, kPoints);
    addOurs("Lasso, what is visible", scene, lasso, kPoints, scene.depths.data());
    addOurs("Box", scene, CVQSelectionShape::Box(500, 200, 1400, 900), kPoints);
    addOurs("Circle", scene, CVQSelectionShape::Circle(960, 540, 400), kPoints);
    addOurs("Band", scene, CVQSelectionShape::Band(500, 200, 1400, 900, 150), kPoints);
    return runWithRatios(argc, argv);
}
