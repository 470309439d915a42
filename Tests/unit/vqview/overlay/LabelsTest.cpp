// SPDX-License-Identifier: MIT
#include "vqview/overlay/Labels.h"
#include "unit/vqview/overlay/OverlayFixture.h"
#include "vqview/overlay/Panels.h"

#include <cmath>

namespace vqview::test::labelsTests {
namespace {

constexpr int kWidth = 800;
constexpr int kHeight = 600;
constexpr double kPi = 3.14159265358979323846;

/// A camera in perspective of 90 degrees, 10 units before the origin, looking along -z; and the list of labels, empty.
class Labels : public StoreTest
{
public:
    Labels()
    {
        CVQDrawingAPI::Text()->RemoveAll();
        constexpr double kNear = 1;
        constexpr double kFar = 100;
        view.m_dModelView[0] = view.m_dModelView[5] = view.m_dModelView[10] = view.m_dModelView[15] = 1;
        view.m_dModelView[14] = -10;
        view.m_dProjection[0] = static_cast<double>(kHeight) / kWidth;
        view.m_dProjection[5] = 1;
        view.m_dProjection[10] = (kFar + kNear) / (kNear - kFar);
        view.m_dProjection[11] = -1;
        view.m_dProjection[14] = 2 * kFar * kNear / (kNear - kFar);
        view.m_iViewport[2] = kWidth;
        view.m_iViewport[3] = kHeight;
    }
    ~Labels() override { CVQDrawingAPI::Text()->RemoveAll(); }

    /// The middle of label number i in the window, y downwards.
    std::pair<double, double> middleOf(int i)
    {
        const SVQText& label = (*CVQDrawingAPI::Text())[i];
        double x = 0;
        double y = 0;
        double depth = 0;
        gluProject(label.m_fX, label.m_fY, label.m_fZ, view.m_dModelView, view.m_dProjection, view.m_iViewport, &x, &y,
                   &depth);
        const CSize size = CVQDIB::GetTextSize(styleOf(DPF_MEASUREMENT_FONT, 1).font, label.m_strText);
        return {x + size.cx / 2.0, kHeight - y + size.cy / 2.0};
    }
    static CString textOf(int i) { return (*CVQDrawingAPI::Text())[i].m_strText; }
    static INT_PTR count() { return CVQDrawingAPI::Text()->GetCount(); }

    LabelContent content;
    SVQGLVariables view{};
};

TEST_F(Labels, NumberPickedPointsAndNameTheirDistances)
{
    const std::vector<Point3> picked{{0, 0, 0}, {3, 4, 0}};
    content.picked = picked;
    addLabels(content, view, 1);
    ASSERT_EQ(count(), 3);
    EXPECT_STREQ(textOf(0), L"1");
    EXPECT_STREQ(textOf(1), L"5.000 mm");
    EXPECT_STREQ(textOf(2), L"2");
}

TEST_F(Labels, StandToTheRightOfPickedPoints)
{
    const std::vector<Point3> picked{{2, -3, 1}};
    content.picked = picked;
    addLabels(content, view, 1);
    ASSERT_EQ(count(), 1);
    const auto [x, y] = middleOf(0);
    const double pointX = 400 + 300 * 2.0 / 9; // 300 pixels are a unit at distance 1; the point is 9 before the eye
    const double pointY = 300 + 300 * 3.0 / 9;
    EXPECT_NEAR(y, pointY, 1.5);
    const double half = CVQDIB::GetTextSize(styleOf(DPF_MEASUREMENT_FONT, 1).font, L"1").cx / 2.0;
    EXPECT_NEAR(x - half, pointX + 12, 1.5);
}

TEST_F(Labels, StandAboveTheLineThatTheyMeasure)
{
    const std::vector<Point3> picked{{-4, 0, 0}, {4, 0, 0}};
    content.picked = picked;
    addLabels(content, view, 1);
    const auto [x, y] = middleOf(1);
    const LONG height = CVQDIB::GetTextSize(styleOf(DPF_MEASUREMENT_FONT, 1).font, L"8.000 mm").cy;
    EXPECT_NEAR(x, 400, 1.5);
    EXPECT_NEAR(y + height / 2.0, 300 - 3, 1.5);
}

TEST_F(Labels, NameTheSizesOfTheBoundsOutsideOfThem)
{
    content.bounds = {{-2, -1, -3}, {2, 1, 3}};
    // Looked down on from above the front, so that no edge is seen from its end.
    const double angle = 40 * kPi / 180;
    view.m_dModelView[5] = view.m_dModelView[10] = std::cos(angle);
    view.m_dModelView[6] = std::sin(angle);
    view.m_dModelView[9] = -std::sin(angle);
    addLabels(content, view, 1);
    ASSERT_EQ(count(), 3);
    EXPECT_STREQ(textOf(0), L"4.000 mm");
    EXPECT_STREQ(textOf(1), L"2.000 mm");
    EXPECT_STREQ(textOf(2), L"6.000 mm");
    EXPECT_NEAR(middleOf(0).first, 400, 1.5);
    EXPECT_GT(middleOf(0).second, 300); // below
    EXPECT_GT(middleOf(1).first, 400);  // right
}

TEST_F(Labels, NameNoEdgeThatIsSeenFromItsEnd)
{
    content.bounds = {{-0.5F, -2, -0.05F}, {0.5F, 2, 0.05F}};
    addLabels(content, view, 1);
    EXPECT_EQ(count(), 2); // depth takes a few pixels only
}

TEST_F(Labels, CountWhatIsSelected)
{
    content.selectedCount = 1234;
    content.selectedCentre = {0, 0, 0};
    addLabels(content, view, 1);
    ASSERT_EQ(count(), 1);
    EXPECT_STREQ(textOf(0), L"1,234 points");
    EXPECT_NEAR(middleOf(0).first, 400, 1.5);
    EXPECT_NEAR(middleOf(0).second, 300, 1.5);
}

TEST_F(Labels, AreNoneOfWhatIsBehindTheEyeOrEmpty)
{
    const std::vector<Point3> picked{{0, 0, 10}, {0, 0, 50}};
    content.picked = picked;
    content.bounds = boundsOf({});
    addLabels(content, view, 1);
    EXPECT_EQ(count(), 0);
}

TEST_F(Labels, AreNoneOfMatricesThatShowNothing)
{
    const std::vector<Point3> picked{{0, 0, 0}};
    content.picked = picked;
    addLabels(content, SVQGLVariables(), 1);
    EXPECT_EQ(count(), 0);
}

TEST_F(Labels, AreDrawnOnceAtTheirPlaces)
{
    const std::vector<Point3> picked{{0, 0, 0}};
    content.picked = picked;
    Canvas image(kWidth, kHeight);
    addLabels(content, view, 1);
    const auto [x, y] = middleOf(0);
    drawLabels(image, view, 1, DragShapes::LeftOut);
    EXPECT_EQ(count(), 0);
    double sumX = 0;
    double sumY = 0;
    double weight = 0;
    for (LONG row = 0; row < kHeight; ++row)
        for (LONG column = 0; column < kWidth; ++column) {
            const double alpha = image.GetA(column, row);
            sumX += alpha * static_cast<double>(column);
            sumY += alpha * static_cast<double>(row);
            weight += alpha;
        }
    ASSERT_GT(weight, 0);
    EXPECT_NEAR(sumX / weight, x, 4);
    EXPECT_NEAR(sumY / weight, y, 5);

    image.Clear(Gdiplus::Color(0));
    drawLabels(image, view, 1, DragShapes::LeftOut);
    EXPECT_TRUE(isBlank(image));
}

TEST_F(Labels, AreDrawnWithShapesThatAreSelectingIfWanted)
{
    CVQDragBox& box = *CVQDrawingAPI::DragBox();
    CPoint from(100, 100);
    CPoint to(300, 200);
    box.Start(from);
    box.Drag(to);
    Canvas image(kWidth, kHeight);
    drawLabels(image, view, 1, DragShapes::LeftOut);
    EXPECT_TRUE(isBlank(image));
    drawLabels(image, view, 1, DragShapes::Drawn);
    EXPECT_NE(image.GetA(200, 150), 0);
    box.Reset();
}

TEST_F(Labels, LieOnTagsThatContrastWithTheirColour)
{
    for (const bool isBright : {false, true}) {
        CVQFont font = Store::GetFont(DPF_MEASUREMENT_FONT);
        font.m_uiColor = isBright ? RGB(255, 255, 255) : RGB(0, 0, 0);
        Store::SetFont(DPF_MEASUREMENT_FONT, font);
        content.selectedCount = 1;
        Canvas image(kWidth, kHeight);
        addLabels(content, view, 1);
        drawLabels(image, view, 1, DragShapes::LeftOut);
        const CSize size = CVQDIB::GetTextSize(styleOf(DPF_MEASUREMENT_FONT, 1).font, L"1 point");
        const LONG x = 400 - size.cx / 2 + 2; // in the margin before the first letter
        EXPECT_GT(image.GetA(x, 300), 100);
        EXPECT_EQ(image.GetG(x, 300) < 128, isBright);
        EXPECT_EQ(image.GetA(x - 6, 300), 0);
    }
}

TEST_F(Labels, TakeTheColourOfTheirFont)
{
    CVQFont font = Store::GetFont(DPF_MEASUREMENT_FONT);
    font.m_uiColor = RGB(0, 255, 0);
    font.m_iNominalSize = -40;
    Store::SetFont(DPF_MEASUREMENT_FONT, font);
    content.selectedCount = 1;
    Canvas image(kWidth, kHeight);
    addLabels(content, view, 1);
    drawLabels(image, view, 1, DragShapes::LeftOut);
    LONG green = 0;
    for (LONG row = 0; row < kHeight; ++row)
        for (LONG column = 0; column < kWidth; ++column)
            green += image.GetA(column, row) > 200 && image.GetG(column, row) > 200 && image.GetR(column, row) < 60;
    EXPECT_GT(green, 50);
}

} // namespace
} // namespace vqview::test::labelsTests
