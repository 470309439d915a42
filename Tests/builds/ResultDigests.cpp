// SPDX-License-Identifier: MIT
// Prints one line for each routine: its name, and the SHA-256 of what it made of random input. Two builds of the
// library whose lines are the same give the same bits.
#include "support/Sha256.h"
#include "unit/Platform/gdiplus/frames/MixedScene.h"
#include "unit/VQDraw/reference/Operations.h"
#include "vqSelection/VQSelection.h"

#include <bit>
#include <cmath>
#include <cstdlib>
#include <iostream>

namespace vq::test {
namespace {

using reference::Dice;
using reference::Number;

constexpr std::uint32_t kTrials = 60;

class Digest
{
public:
    void add(CVQDIB& image)
    {
        const BYTE* first = image.GetByteImageBuffer();
        m_bytes.insert(m_bytes.end(), first, first + image.GetSizeInByte());
    }
    void add(const reference::Results& numbers)
    {
        for (const Number number : numbers)
            for (int shift = 0; shift < 32; shift += 8)
                m_bytes.push_back(static_cast<std::uint8_t>(number >> shift));
    }
    template <typename Number64>
    void add(const Number64* numbers, std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i) {
            const auto bits = std::bit_cast<std::uint64_t>(numbers[i]);
            for (int shift = 0; shift < 64; shift += 8)
                m_bytes.push_back(static_cast<std::uint8_t>(bits >> shift));
        }
    }
    void print(const std::string& name) const { std::cout << name << ' ' << sha256(m_bytes) << '\n'; }

private:
    std::vector<std::uint8_t> m_bytes;
};

void fill(CVQDIB& image, reference::Content content, std::uint32_t seed)
{
    const auto picture = reference::picture(image.GetWidth(), image.GetHeight(), content, seed);
    std::ranges::copy(picture.pixels, image.GetImageBuffer());
}

void addTrial(Digest& digest, const reference::Operation& operation, const reference::Trial& trial)
{
    CVQDIB image(trial.width, trial.height);
    CVQDIB other(std::max(trial.sourceWidth, 1), std::max(trial.sourceHeight, 1));
    fill(image, trial.content, trial.seed);
    fill(other, trial.sourceContent, trial.seed + 1);
    CVQDIB& source = operation.readsSource && !trial.sourceIsImage ? other : image;

    reference::Results told;
    reference::Call call{image, source, trial.arguments, told};
    std::srand(trial.seed);
    operation.ways[trial.way].run(call);
    digest.add(image);
    digest.add(told);
}

void digestPixelRoutines()
{
    for (const reference::Operation& operation : reference::everyOperation()) {
        Digest digest;
        for (std::uint32_t seed = 0; seed < kTrials; ++seed) {
            Dice dice(seed);
            addTrial(digest, operation, randomTrial(operation, seed, dice.between(1, 300), dice.between(1, 90)));
        }
        digest.print(operation.name);
    }
}

void digestScaledTransfers()
{
    using namespace Gdiplus;
    for (const InterpolationMode mode : {InterpolationModeNearestNeighbor, InterpolationModeBilinear}) {
        Digest digest;
        for (std::uint32_t seed = 0; seed < kTrials; ++seed) {
            Dice dice(seed);
            CVQDIB image(dice.between(1, 200), dice.between(1, 90));
            CVQDIB source(dice.between(1, 200), dice.between(1, 90));
            fill(image, reference::Content::Random, seed);
            fill(source, reference::Content::Random, seed + 1);
            image.GetGraphics()->SetInterpolationMode(mode);
            image.PasteWithScale(&source, dice.between(-9, 9), dice.between(-9, 9), dice.between(1, 200), 80);
            image.CopyWithScale(&source, dice.between(-9, 99), dice.between(-9, 9), 50, dice.between(1, 99));
            digest.add(image);
        }
        digest.print(mode == InterpolationModeBilinear ? "ScaledBilinear" : "ScaledNearest");
    }
}

void digestSceneParts()
{
    const SceneObjects objects;
    for (const ScenePart& part : sceneParts()) {
        Digest digest;
        for (const auto content : reference::kContents) {
            CVQDIB image(kFrameWidth, kFrameHeight);
            fill(image, content, 1);
            part.draw(*image.GetGraphics(), objects);
            digest.add(image);
        }
        digest.print(std::string("Scene:") + part.name);
    }
}

/// Strokes, fills and gradients of random shapes, smooth and hard.
void digestShapes()
{
    using namespace Gdiplus;
    for (const SmoothingMode smoothing : {SmoothingModeNone, SmoothingModeAntiAlias}) {
        Digest digest;
        for (std::uint32_t seed = 0; seed < kTrials; ++seed) {
            Dice dice(seed);
            const auto coordinate = [&] { return static_cast<REAL>(dice.between(-2000, 22000)) / 100; };
            CVQDIB image(dice.between(1, 200), dice.between(1, 200));
            fill(image, reference::Content::Random, seed);
            Graphics& graphics = *image.GetGraphics();
            graphics.SetSmoothingMode(smoothing);

            const Pen pen(Color(dice.word()), static_cast<REAL>(dice.between(0, 120)) / 10);
            std::array<PointF, 9> corners;
            for (PointF& corner : corners) {
                corner.X = coordinate();
                corner.Y = coordinate();
            }
            graphics.DrawBeziers(&pen, corners.data(), 7);
            const LinearGradientBrush gradient(PointF(0, 0), PointF(150, 90), Color(dice.word()), Color(dice.word()));
            graphics.FillPolygon(&gradient, corners.data(), static_cast<INT>(corners.size()));
            const SolidBrush solid(Color(dice.word()));
            const RectF box(corners[0], SizeF(120, coordinate()));
            graphics.FillEllipse(&solid, box);
            graphics.DrawEllipse(&pen, box);
            digest.add(image);
        }
        digest.print(smoothing == SmoothingModeNone ? "HardShapes" : "SmoothShapes");
    }
}

/// A perspective view that is a little different each time.
SVQGLVariables someView(Dice& dice)
{
    const auto number = [&dice] { return dice.between(-100, 100) / 1000.0; };
    SVQGLVariables view{};
    for (double& element : view.m_dModelView)
        element = number();
    for (const int diagonal : {0, 5, 10, 15})
        view.m_dModelView[diagonal] = 1;
    view.m_dModelView[14] = -3;
    view.m_dProjection[0] = 1.5 + number();
    view.m_dProjection[5] = 1.5 + number();
    view.m_dProjection[10] = -1.5;
    view.m_dProjection[11] = -1;
    view.m_dProjection[14] = -2.5;
    view.m_iViewport[2] = dice.between(1, 300);
    view.m_iViewport[3] = dice.between(1, 300);
    return view;
}

CVQSelectionShape someShape(Dice& dice)
{
    const auto place = [&dice] { return dice.between(-1000, 4000) / 10.0; };
    std::vector<double> vertices(static_cast<std::size_t>(dice.between(3, 100)) * 2);
    std::ranges::generate(vertices, place);
    switch (dice.below(4)) {
    case 0:
        return CVQSelectionShape::Box(place(), place(), place(), place());
    case 1:
        return CVQSelectionShape::Circle(150, 150, std::abs(place()));
    case 2:
        return CVQSelectionShape::Band(vertices[0], vertices[1], vertices[2], vertices[3], 30);
    default:
        return CVQSelectionShape::Polygon(vertices.data(), vertices.size() / 2);
    }
}

/// Places of points on the screen, and which of them are selected.
void digestSelection()
{
    Digest digest;
    for (std::uint32_t seed = 0; seed < kTrials; ++seed) {
        Dice dice(seed);
        const SVQGLVariables variables = someView(dice);
        std::vector<float> points(3 * 2000);
        std::vector<float> depths(static_cast<std::size_t>(variables.m_iViewport[2] * variables.m_iViewport[3]));
        for (float& coordinate : points)
            coordinate = static_cast<float>(dice.between(-20000, 20000)) / 10000;
        for (float& depth : depths)
            depth = static_cast<float>(dice.between(0, 10000)) / 10000;
        const auto view = SVQSelectionView::Of(variables, dice.oneIn(2) ? depths.data() : nullptr);
        CVQSelectionSet set;
        CVQSelection::Select(someShape(dice), view, {points.data(), points.size() / 3}, VQ_SELECT_REPLACE, set);
        digest.add(set.GetWords(), set.GetWordCount());
        for (std::size_t i = 0; i < points.size(); i += 3) {
            std::array<double, 3> place{};
            CVQSelection::Project(view, &points[i], place.data());
            digest.add(place.data(), place.size());
        }
    }
    digest.print("Selection");
}

} // namespace
} // namespace vq::test

int main()
{
    if (CVQDIB::InitializeGDIPlus() == 0)
        return EXIT_FAILURE;
    vq::test::digestPixelRoutines();
    vq::test::digestScaledTransfers();
    vq::test::digestShapes();
    vq::test::digestSceneParts();
    vq::test::digestSelection();
    CVQDIB::ShutdownGDIPlus();
}
