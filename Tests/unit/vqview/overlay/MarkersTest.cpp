// SPDX-License-Identifier: MIT
#include "vqview/overlay/Markers.h"
#include "unit/vqview/overlay/OverlayFixture.h"

#include <cmath>

namespace vqview::test::markersTests {
namespace {

class Markers : public FrameTest
{
public:
    void draw(const std::vector<Marker>& markers, float radius)
    {
        drawMarkers(markers, view, radius);
        readBack();
    }
    LONG drawnPixels() { return kWidth * kHeight - countOf(frame, opaque(kCleared), {0, 0, kWidth, kHeight}); }
    /// A plane across the view at a depth.
    static void hideBehind(float z)
    {
        glEnable(GL_DEPTH_TEST);
        glColor3ub(kCleared.r, kCleared.g, kCleared.b);
        glMatrixMode(GL_PROJECTION);
        glLoadIdentity();
        glOrtho(-kWidth / 2, kWidth / 2, -kHeight / 2, kHeight / 2, -200, 200);
        glBegin(GL_QUADS);
        for (const auto& [x, y] : {std::pair{-80, -60}, {80, -60}, {80, 60}, {-80, 60}})
            glVertex3f(static_cast<float>(x), static_cast<float>(y), z);
        glEnd();
    }
};

constexpr double kPi = 3.14159265358979323846;

TEST_F(Markers, ThatAreSpheresCoverACircleRoundTheirPoint)
{
    draw({{.at = {10, 20, 0}}}, 15);
    for (LONG y = 0; y < kHeight; ++y)
        for (LONG x = 0; x < kWidth; ++x) {
            const double away = std::hypot(static_cast<double>(x) + 0.5 - 90, static_cast<double>(y) + 0.5 - 40);
            if (away > 14 && away < 16)
                continue;
            ASSERT_EQ(isUntouched(x, y), away > 15) << x << ", " << y;
        }
}

TEST_F(Markers, TakeTheirMaterialFromTheStore)
{
    CVQMaterial material;
    std::fill_n(material.m_fDiffuse, 3, 0.0F);
    std::fill_n(material.m_fAmbient, 3, 0.0F);
    material.m_fDiffuse[0] = 1;
    Store::SetDPMaterial(DPM_REGION_PLANE, material);
    draw({{.at = {0, 0, 0}, .material = DPM_REGION_PLANE}}, 20);
    const ULONG pixel = frame.GetColor(80, 58);
    EXPECT_GT(pixel >> 16 & 0xFF, 60u);
    EXPECT_EQ(pixel & 0xFFFF, 0u);
}

TEST_F(Markers, ThatAreDisksFaceTheirDirection)
{
    draw({{.kind = MarkerKind::Disk, .direction = {0, 0, 1}}}, 40);
    const double octagon = 2 * std::sqrt(2.0) * 40 * 40;
    EXPECT_NEAR(drawnPixels(), octagon, octagon * 0.03);

    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    draw({{.kind = MarkerKind::Disk, .direction = {0, 2, 2}}}, 40); // turned by 45 degrees, it is seen less high
    EXPECT_NEAR(drawnPixels(), octagon * std::cos(kPi / 4), octagon * 0.04);
}

TEST_F(Markers, ThatAreDisksMayFaceAwayAndAcross)
{
    draw({{.kind = MarkerKind::Disk, .direction = {0, 0, -1}}}, 40);
    EXPECT_GT(drawnPixels(), 4000);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    draw({{.kind = MarkerKind::Disk, .direction = {1, 0, 0}}}, 40); // seen from its edge
    EXPECT_LT(drawnPixels(), 200);
}

TEST_F(Markers, AreHiddenByWhatIsBeforeThem)
{
    hideBehind(50);
    draw({{.at = {0, 0, 0}}}, 15);
    EXPECT_EQ(drawnPixels(), 0);
}

TEST_F(Markers, ThatAreLinesRunBetweenTheirEndsAndShineThrough)
{
    const std::vector<Marker> markers{{.kind = MarkerKind::Line, .at = {-40, 0.5F, 0}, .to = {40, 0.5F, 0}}};
    draw(markers, 5);
    const ULONG ink = opaque(Store::GetDPCVQColor(DPC_MEASURE));
    EXPECT_EQ(frame.GetColor(80, 59), ink);
    EXPECT_TRUE(isUntouched(30, 59));
    EXPECT_NEAR(drawnPixels(), 80, 2);

    hideBehind(50);
    draw(markers, 5);
    EXPECT_FALSE(isUntouched(80, 59));
    EXPECT_NE(frame.GetColor(80, 59), ink);
}

TEST_F(Markers, OfMeasuringAreSpheresAndTheLinesBetweenThem)
{
    std::vector<Marker> markers;
    addMeasureMarkers({}, markers);
    EXPECT_TRUE(markers.empty());
    const std::vector<Point3> picked{{0, 0, 0}, {1, 0, 0}, {1, 1, 0}};
    addMeasureMarkers(picked, markers);
    EXPECT_EQ(std::count_if(markers.begin(), markers.end(),
                            [](const Marker& marker) { return marker.kind == MarkerKind::Sphere; }),
              3);
    ASSERT_EQ(markers.size(), 5u);
    EXPECT_EQ(markers[1].kind, MarkerKind::Line);
    EXPECT_EQ(markers[1].at, picked[0]);
    EXPECT_EQ(markers[1].to, picked[1]);
}

TEST_F(Markers, LeaveTheStateOfOpenGL)
{
    glMatrixMode(GL_PROJECTION);
    glDepthFunc(GL_GREATER);
    glViewport(1, 2, 3, 4);
    draw({{.at = {0, 0, 0}}, {.kind = MarkerKind::Disk}, {.kind = MarkerKind::Line, .to = {9, 9, 9}}}, 5);
    drawBounds({{-9, -9, -9}, {9, 9, 9}}, view);
    std::array<GLint, 4> port{};
    glGetIntegerv(GL_VIEWPORT, port.data());
    EXPECT_EQ(port, (std::array<GLint, 4>{1, 2, 3, 4}));
    for (const GLenum off : {GL_LIGHTING, GL_LIGHT0, GL_BLEND, GL_DEPTH_TEST, GL_NORMALIZE, GL_POLYGON_OFFSET_FILL})
        EXPECT_EQ(glIsEnabled(off), GL_FALSE) << std::hex << off;
    GLint number = 0;
    glGetIntegerv(GL_MATRIX_MODE, &number);
    EXPECT_EQ(number, GL_PROJECTION);
    glGetIntegerv(GL_DEPTH_FUNC, &number);
    EXPECT_EQ(number, GL_GREATER);
    std::array<double, 16> matrix{};
    glGetDoublev(GL_MODELVIEW_MATRIX, matrix.data());
    EXPECT_EQ(matrix, kIdentity);
}

TEST_F(Markers, OfBoundsAreTheirEdges)
{
    drawBounds({{-40.5F, -30.5F, -5}, {39.5F, 29.5F, 5}}, view);
    readBack();
    EXPECT_FALSE(isUntouched(80, 30)); // upper edge, y = 29.5
    EXPECT_FALSE(isUntouched(39, 60)); // left edge, x = -40.5
    EXPECT_TRUE(isUntouched(80, 60));
    drawBounds(boundsOf({}), view);
}

} // namespace
} // namespace vqview::test::markersTests
