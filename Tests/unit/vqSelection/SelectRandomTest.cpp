// SPDX-License-Identifier: MIT
// A thousand random views and shapes beside what the definition says, point by point, step by step.
#include "unit/vqSelection/Scene.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <random>

namespace {

using namespace vq::test;

constexpr std::size_t kPoints = 400;

class Dice
{
public:
    explicit Dice(unsigned seed) : m_engine(seed) {}

    double between(double least, double most) { return std::uniform_real_distribution<double>(least, most)(m_engine); }
    int whole(int least, int most) { return std::uniform_int_distribution<int>(least, most)(m_engine); }

private:
    std::mt19937 m_engine;
};

struct Place
{
    double x, y, depth;
    bool isSeen; // before the eye, between the near and the far plane
};

/// Turned about a random axis and moved away from the eye.
void turn(Dice& dice, double (&matrix)[16])
{
    double axis[3];
    double length = 0;
    for (double& number : axis) {
        number = dice.between(-1, 1);
        length += number * number;
    }
    for (double& number : axis)
        number /= std::sqrt(length);
    const double angle = dice.between(0, 6.28);
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 3; ++column) {
            const int other = 3 - row - column;
            const double sign = (column - row + 3) % 3 == 1 ? -1 : 1;
            const double off = row == column ? c : sign * s * axis[other];
            matrix[column * 4 + row] = axis[row] * axis[column] * (1 - c) + off;
        }
    matrix[14] = -2;
    matrix[15] = 1;
}

SVQGLVariables randomView(Dice& dice)
{
    SVQGLVariables view{};
    turn(dice, view.m_dModelView);
    const double nearest = dice.between(0.5, 1.5);
    const double farthest = dice.between(2, 4);
    double(&p)[16] = view.m_dProjection;
    if (dice.whole(0, 1) == 0) {
        p[0] = dice.between(0.5, 2);
        p[5] = dice.between(0.5, 2);
        p[10] = -2 / (farthest - nearest);
        p[14] = -(farthest + nearest) / (farthest - nearest);
        p[15] = 1;
    } else {
        p[0] = dice.between(0.7, 2);
        p[5] = dice.between(0.7, 2);
        p[10] = -(farthest + nearest) / (farthest - nearest);
        p[11] = -1;
        p[14] = -2 * farthest * nearest / (farthest - nearest);
    }
    view.m_iViewport[0] = dice.whole(-1, 1) * dice.whole(0, 50);
    view.m_iViewport[1] = dice.whole(-1, 1) * dice.whole(0, 50);
    view.m_iViewport[2] = dice.whole(1, 200);
    view.m_iViewport[3] = dice.whole(1, 200);
    return view;
}

void multiply(const double (&matrix)[16], const double (&vector)[4], double (&product)[4])
{
    for (int row = 0; row < 4; ++row) {
        product[row] = 0;
        for (int column = 0; column < 4; ++column)
            product[row] += matrix[column * 4 + row] * vector[column];
    }
}

/// As gluProject documents it, y then downwards.
Place placeOf(const SVQGLVariables& view, const float* point)
{
    const double object[4] = {point[0], point[1], point[2], 1};
    double eye[4];
    double clip[4];
    multiply(view.m_dModelView, object, eye);
    multiply(view.m_dProjection, eye, clip);
    const int(&viewport)[4] = view.m_iViewport;
    const double windowX = viewport[0] + viewport[2] * (clip[0] / clip[3] + 1) / 2;
    const double windowY = viewport[1] + viewport[3] * (clip[1] / clip[3] + 1) / 2;
    const bool isSeen = clip[3] > 0 && std::abs(clip[2]) <= clip[3];
    return {windowX, viewport[3] - windowY, (clip[2] / clip[3] + 1) / 2, isSeen};
}

/// Whether the buffer shows the pixel of a place, or one beside it, at least as far away.
bool isVisible(const SVQSelectionView& view, const Place& place)
{
    const int(&viewport)[4] = view.m_view.m_iViewport;
    const int column = static_cast<int>(std::floor(place.x)) - viewport[0];
    const int row = static_cast<int>(std::floor(viewport[3] - place.y)) - viewport[1];
    const auto isPixel = [&viewport](int x, int y) { return x >= 0 && y >= 0 && x < viewport[2] && y < viewport[3]; };
    if (!isPixel(column, row))
        return false;
    float farthest = -1;
    for (int y = row - 1; y <= row + 1; ++y)
        for (int x = column - 1; x <= column + 1; ++x)
            if (isPixel(x, y))
                farthest = std::max(farthest, view.m_pDepth[y * viewport[2] + x]);
    return place.depth <= double{farthest} + view.m_dTolerance;
}

using Corners = std::vector<std::pair<double, double>>;

/// The alternate rule along a ray to the right.
bool isInPolygon(const Corners& corners, double x, double y)
{
    bool inside = false;
    for (std::size_t i = 0, before = corners.size() - 1; i < corners.size(); before = i++) {
        const auto& [x1, y1] = corners[i];
        const auto& [x2, y2] = corners[before];
        if ((y1 <= y) == (y2 <= y))
            continue;
        if (x1 + (y - y1) / (y2 - y1) * (x2 - x1) > x)
            inside = !inside;
    }
    return inside;
}

/// A shape, and what the definition says of it.
struct Case
{
    CVQSelectionShape shape;
    std::function<bool(double, double)> has;
};

Case randomCase(Dice& dice)
{
    const auto place = [&dice] { return dice.between(-60, 260); };
    const double x1 = place();
    const double y1 = place();
    const double x2 = place();
    const double y2 = place();
    const double size = dice.between(1, 100);
    switch (dice.whole(0, 3)) {
    case 0:
        return {CVQSelectionShape::Box(x1, y1, x2, y2),
                [=](double x, double y) { return (x - x1) * (x - x2) <= 0 && (y - y1) * (y - y2) <= 0; }};
    case 1:
        return {CVQSelectionShape::Circle(x1, y1, size),
                [=](double x, double y) { return std::hypot(x - x1, y - y1) <= size; }};
    case 2: {
        CVQDragLine line;
        CPoint start(static_cast<int>(x1), static_cast<int>(y1));
        CPoint end(static_cast<int>(x2), static_cast<int>(y2));
        const int width = static_cast<int>(size);
        line.Start(start);
        line.Drag(end);
        line.SetWidth(width);
        return {CVQSelectionShape::Of(line), [=](double x, double y) {
                    const double dx = end.x - start.x;
                    const double dy = end.y - start.y;
                    const double length = std::hypot(dx, dy);
                    const double along = ((x - start.x) * dx + (y - start.y) * dy) / length;
                    const double beside = ((y - start.y) * dx - (x - start.x) * dy) / length;
                    return length > 0 && along >= 0 && along <= length && std::abs(beside) <= width;
                }};
    }
    default:
        break;
    }
    Corners corners(static_cast<std::size_t>(dice.whole(3, 60)));
    std::vector<double> numbers;
    for (auto& [x, y] : corners) {
        x = place();
        y = place();
        numbers.insert(numbers.end(), {x, y});
    }
    return {CVQSelectionShape::Polygon(numbers.data(), corners.size()),
            [=](double x, double y) { return isInPolygon(corners, x, y); }};
}

bool combined(bool before, bool found, EVQSelectionMode mode)
{
    switch (mode) {
    case VQ_SELECT_ADD:
        return before || found;
    case VQ_SELECT_SUBTRACT:
        return before && !found;
    case VQ_SELECT_TOGGLE:
        return before != found;
    default:
        return found;
    }
}

class RandomSelection : public testing::TestWithParam<bool>
{
};

TEST_P(RandomSelection, IsWhatTheDefinitionSaysOfEveryPoint)
{
    for (unsigned seed = 1; seed <= 1000; ++seed) {
        Dice dice(seed);
        const SVQGLVariables variables = randomView(dice);
        std::vector<float> depths;
        for (int i = 0; i < variables.m_iViewport[2] * variables.m_iViewport[3]; ++i)
            depths.push_back(static_cast<float>(dice.between(-1, 1)));
        const auto view = SVQSelectionView::Of(variables, GetParam() ? depths.data() : nullptr);
        const Case trial = randomCase(dice);
        const auto mode = static_cast<EVQSelectionMode>(dice.whole(VQ_SELECT_REPLACE, VQ_SELECT_TOGGLE));

        std::vector<float> points(3 * kPoints);
        for (float& number : points)
            number = static_cast<float>(dice.between(-1.5, 1.5));
        CVQSelectionSet set(kPoints);
        for (std::size_t i = 0; i < kPoints; ++i)
            set.Select(i, dice.whole(0, 1) == 0);
        const CVQSelectionSet before = set;
        CVQSelectionSet expected(kPoints);
        std::size_t changed = 0;
        for (std::size_t i = 0; i < kPoints; ++i) {
            const Place place = placeOf(variables, &points[3 * i]);
            const bool found = place.isSeen && trial.has(place.x, place.y) && (!GetParam() || isVisible(view, place));
            expected.Select(i, combined(before.IsSelected(i), found, mode));
            changed += expected.IsSelected(i) != before.IsSelected(i) ? 1 : 0;
        }
        EXPECT_EQ(CVQSelection::Select(trial.shape, view, {points.data(), kPoints}, mode, set), changed);
        ASSERT_EQ(indicesOf(set), indicesOf(expected)) << "seed " << seed;
    }
}

INSTANTIATE_TEST_SUITE_P(ThroughAndVisible, RandomSelection, testing::Bool(),
                         [](const auto& test) { return test.param ? "Visible" : "Through"; });

} // namespace
