// SPDX-License-Identifier: MIT
// Where labels are drawn. Expected pictures are drawn by the image itself, at places that are computed here.
#include "VQDraw/VQText.h"
#include "support/Pictures.h"

#include <array>
#include <cmath>
#include <limits>
#include <random>

namespace vq::test {
namespace {

using Matrix = std::array<double, 16>; // column by column

constexpr Matrix kIdentity{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

/// With these and the identity a point x, y is seen at window x, y of a viewport.
Matrix windowProjection(const std::array<int, 4>& viewport)
{
    Matrix result = kIdentity;
    result[0] = 2.0 / viewport[2];
    result[5] = 2.0 / viewport[3];
    result[12] = -1 - 2.0 * viewport[0] / viewport[2];
    result[13] = -1 - 2.0 * viewport[1] / viewport[3];
    return result;
}

struct View
{
    Matrix model = kIdentity;
    Matrix projection = kIdentity;
    std::array<int, 4> viewport{0, 0, 64, 48};
};

/// A view whose model coordinates are window pixels.
View windowView(const std::array<int, 4>& viewport)
{
    return {kIdentity, windowProjection(viewport), viewport};
}

void draw(CVQText& labels, CVQDIB& image, View view, LONG dx = 0, LONG dy = 0)
{
    labels.Draw(&image, dx, dy, view.model.data(), view.projection.data(), view.viewport.data());
}

/// The picture of texts at pixels.
Pixels picture(const std::vector<std::pair<CPoint, const wchar_t*>>& texts)
{
    CVQDIB image(64, 48);
    for (const auto& [place, text] : texts)
        image.TextOutW(place.x, place.y, text);
    return pixels(image);
}

std::array<long double, 4> product(const Matrix& matrix, const std::array<long double, 4>& vector)
{
    std::array<long double, 4> result{};
    for (std::size_t row = 0; row < 4; ++row)
        for (std::size_t column = 0; column < 4; ++column)
            result[row] += static_cast<long double>(matrix[4 * column + row]) * vector[column];
    return result;
}

struct Window
{
    long double x, y;
};

Window projected(const View& view, const SVQText& label)
{
    const auto clip = product(view.projection, product(view.model, {label.m_fX, label.m_fY, label.m_fZ, 1}));
    return {view.viewport[0] + view.viewport[2] * (clip[0] / clip[3] + 1) / 2,
            view.viewport[1] + view.viewport[3] * (clip[1] / clip[3] + 1) / 2};
}

TEST(CVQTextDraw, CountsRowsFromTheTop)
{
    const std::array<int, 4> viewport{0, 0, 64, 48};
    CVQText labels;
    labels.Add(VQ_TEXT_FREE, 5, 39.5f, 0, L"a");
    CVQDIB image(64, 48);
    draw(labels, image, windowView(viewport), 2, -3);
    EXPECT_TRUE(shows(image, picture({{CPoint(7, 4), L"a"}}))); // trunc(48 - 39.5 - 1) - 3
}

TEST(CVQTextDraw, TheWindowsLowestRowIsTheImagesLast)
{
    const std::array<int, 4> viewport{0, 0, 600, 600};
    CVQText labels;
    labels.Add(VQ_TEXT_FREE, 3, 0, 0, L"a");
    CVQDIB image(64, 48);
    draw(labels, image, windowView(viewport), 0, -580);
    EXPECT_TRUE(shows(image, picture({{CPoint(3, 19), L"a"}}))); // 599 - 580
}

TEST(CVQTextDraw, TakesTheViewportsOriginFromItsHeight)
{
    const std::array<int, 4> viewport{10, 20, 64, 60};
    CVQText labels;
    labels.Add(VQ_TEXT_FREE, 15, 30.5f, 0, L"a");
    CVQDIB image(64, 48);
    draw(labels, image, windowView(viewport));
    EXPECT_TRUE(shows(image, picture({{CPoint(15, 8), L"a"}}))); // trunc((60 - 20) - 30.5 - 1)
}

TEST(CVQTextDraw, CutsFractionsTowardsZeroBeforeTheOffset)
{
    const std::array<int, 4> viewport{0, 0, 64, 48};
    CVQText labels;
    labels.Add(VQ_TEXT_FREE, -2.5f, 49.5f, 0, L"a"); // y is 48 - 49.5 - 1 = -2.5
    CVQDIB image(64, 48);
    draw(labels, image, windowView(viewport), 8, 9);
    EXPECT_TRUE(shows(image, picture({{CPoint(6, 7), L"a"}})));
}

TEST(CVQTextDraw, UsesTheImagesTextColourAndShadow)
{
    const auto prepare = [](CVQDIB& image) {
        image.SetTextColor(RGB(200, 30, 60), 255);
        image.EnableTextShadow(true);
    };
    CVQText labels;
    labels.Add(VQ_TEXT_FREE, 10, 29.5f, 0, L"a");
    CVQDIB image(64, 48);
    prepare(image);
    draw(labels, image, windowView({0, 0, 64, 48}));
    CVQDIB expected(64, 48);
    prepare(expected);
    expected.TextOutW(10, 17, L"a");
    EXPECT_TRUE(shows(image, pixels(expected)));
}

double anyOf(std::mt19937& random, double low, double high)
{
    return std::uniform_real_distribution<double>(low, high)(random);
}

/// A camera that looks along -z from the origin, sheared a little; what lies at positive z is behind the eye.
View randomView(std::mt19937& random)
{
    View view;
    for (double& number : view.model)
        number += anyOf(random, -0.2, 0.2);
    view.model[3] = view.model[7] = view.model[11] = 0;
    view.model[15] = 1;
    view.projection = {anyOf(random, 1, 2), 0, 0, 0, 0, anyOf(random, 1, 2), 0, 0, 0, 0, -1.2, -1, 0, 0, -2.2, 0};
    view.viewport = {static_cast<int>(random() % 9), static_cast<int>(random() % 9),
                     40 + static_cast<int>(random() % 20), 30 + static_cast<int>(random() % 20)};
    return view;
}

bool isNearAnInteger(long double value)
{
    return std::fabs(value - std::round(value)) < 1e-6L;
}

TEST(CVQTextDraw, ProjectsAnchorsBeforeAndBehindTheEye)
{
    std::mt19937 random(7);
    int before = 0;
    int behind = 0;
    for (int round = 0; round < 60; ++round) {
        const View view = randomView(random);
        CVQText labels;
        const double depth = anyOf(random, 2, 9) * (round % 2 ? 1 : -1);
        labels.Add(VQ_TEXT_FREE, static_cast<float>(anyOf(random, -2, 2)), static_cast<float>(anyOf(random, -2, 2)),
                   static_cast<float>(depth), L"M");
        const Window window = projected(view, labels[0]);
        const long double top = view.viewport[3] - view.viewport[1] - window.y - 1;
        if (isNearAnInteger(window.x) || isNearAnInteger(top))
            continue;
        CVQDIB image(64, 48);
        draw(labels, image, view);
        const CPoint place(static_cast<int>(window.x), static_cast<int>(top));
        ASSERT_TRUE(shows(image, picture({{place, L"M"}}))) << "round " << round;
        ++(depth < 0 ? before : behind);
    }
    EXPECT_GT(before, 20);
    EXPECT_GT(behind, 20);
}

TEST(CVQTextDraw, PutsWhatHasNoProjectionAtTheWindowsOrigin)
{
    View view = windowView({0, 0, 64, 30});
    view.projection[15] = 0; // w is 0 for every point
    CVQText labels;
    labels.Add(VQ_TEXT_FREE, 5, 5, 5, L"a");
    CVQDIB image(64, 48);
    draw(labels, image, view);
    EXPECT_TRUE(shows(image, picture({{CPoint(0, 29), L"a"}})));
}

TEST(CVQTextDraw, LeavesOutPlacesThatAreNoInteger)
{
    const float infinity = std::numeric_limits<float>::infinity();
    CVQDIB image(64, 48);
    const Pixels empty = pixels(image);
    for (const float distant : {infinity, -infinity, std::nanf(""), 1e10f, -1e10f, 3e38f}) {
        CVQText labels;
        labels.Add(VQ_TEXT_FREE | VQ_TEXT_ONCE, distant, 5, 0, L"a");
        labels.Add(VQ_TEXT_FREE | VQ_TEXT_ONCE, 5, distant, 0, L"a");
        labels.Add(VQ_TEXT_FREE, 5, distant, 0, L"a");
        draw(labels, image, windowView({0, 0, 64, 48}));
        EXPECT_TRUE(shows(image, empty)) << distant;
        EXPECT_EQ(labels.GetCount(), 1) << "one-shot labels go, whatever became of them";
    }
}

TEST(CVQTextDraw, LeavesOutPlacesThatTheOffsetMovesBeyondThirtyTwoBits)
{
    CVQText labels;
    labels.Add(VQ_TEXT_FREE, 2000000000.0f, 5, 0, L"a");
    CVQDIB image(64, 48);
    const Pixels empty = pixels(image);
    draw(labels, image, windowView({0, 0, 64, 48}), std::numeric_limits<LONG>::max(), 0);
    EXPECT_TRUE(shows(image, empty));
}

TEST(CVQTextDraw, DrawsOneShotLabelsOnceAndKeepsTheOthers)
{
    CVQText labels;
    labels.Add(VQ_TEXT_FREE | VQ_TEXT_ONCE, 2, 39.5f, 0, L"a");
    labels.Add(VQ_TEXT_FREE, 20, 39.5f, 0, L"b");
    labels.Add(VQ_TEXT_FREE | VQ_TEXT_ONCE, 40, 39.5f, 0, L"c");
    const View view = windowView({0, 0, 64, 48});

    CVQDIB first(64, 48);
    draw(labels, first, view);
    EXPECT_TRUE(shows(first, picture({{CPoint(2, 7), L"a"}, {CPoint(20, 7), L"b"}, {CPoint(40, 7), L"c"}})));
    ASSERT_EQ(labels.GetCount(), 1);
    EXPECT_EQ(labels[0].m_strText, L"b");

    CVQDIB second(64, 48);
    draw(labels, second, view);
    EXPECT_TRUE(shows(second, picture({{CPoint(20, 7), L"b"}})));
}

TEST(CVQTextDraw, DropsOneShotLabelsInAnyPattern)
{
    for (unsigned pattern = 0; pattern < 32; ++pattern) {
        CVQText labels;
        std::vector<float> kept;
        for (unsigned bit = 0; bit < 5; ++bit) {
            const bool once = (pattern >> bit & 1) != 0;
            labels.Add(once ? VQ_TEXT_FREE | VQ_TEXT_ONCE : VQ_TEXT_FREE, static_cast<float>(bit), 0, 0, L"");
            if (!once)
                kept.push_back(static_cast<float>(bit));
        }
        CVQDIB image(64, 48);
        draw(labels, image, windowView({0, 0, 64, 48}));
        ASSERT_EQ(labels.GetCount(), static_cast<INT_PTR>(kept.size()));
        for (std::size_t i = 0; i < kept.size(); ++i)
            EXPECT_EQ(labels[static_cast<INT_PTR>(i)].m_fX, kept[i]) << pattern;
    }
}

TEST(CVQTextDraw, AnEmptyListDrawsNothing)
{
    CVQText labels;
    CVQDIB image(64, 48);
    const Pixels empty = pixels(image);
    draw(labels, image, {});
    EXPECT_TRUE(shows(image, empty));
}

TEST(CVQTextDraw, IsHarmlessWithoutAnImageOrAView)
{
    CVQText labels;
    labels.Add(VQ_TEXT_FREE | VQ_TEXT_ONCE, 0, 0, 0, L"a");
    View view;
    double* const model = view.model.data();
    double* const projection = view.projection.data();
    int* const viewport = view.viewport.data();
    CVQDIB image(8, 8);
    labels.Draw(nullptr, 0, 0, model, projection, viewport);
    labels.Draw(&image, 0, 0, nullptr, projection, viewport);
    labels.Draw(&image, 0, 0, model, nullptr, viewport);
    labels.Draw(&image, 0, 0, model, projection, nullptr);
    EXPECT_EQ(labels.GetCount(), 1);

    CVQDIB withoutPixels(static_cast<CVQDIB*>(nullptr));
    labels.Draw(&withoutPixels, 0, 0, model, projection, viewport);
    EXPECT_EQ(labels.GetCount(), 0);
}

} // namespace
} // namespace vq::test
