// SPDX-License-Identifier: MIT
// Spheres and disks in a light, beside Lambert's law: brightness goes with the cosine between normal and light.
#include "gl/Scene.h"

#include "VQDraw/VQDrawingAPI.h"
#include "unit/VQDraw/overlay/drag/ShapeAccess.h"

#include <numbers>
#include <utility>

namespace vq::test::meshPixelsTests {
namespace {

using Facade = CVQDrawingAPI;

constexpr float kRadius = 50;
constexpr double kCentreX = 80;
constexpr double kCentreY = 60; // from below, as from above
constexpr double kAmbient = 0.1;
constexpr double kDiffuse = 0.9;

struct Vector
{
    double x, y, z;
};

double dot(const Vector& a, const Vector& b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

constexpr Vector kToLight{2.0 / 7, 3.0 / 7, 6.0 / 7}; // of length 1

/// Of a white surface; grey values of 0 .. 255.
double lambert(const Vector& normal)
{
    return 255 * std::min(1.0, kAmbient + kDiffuse * std::max(0.0, dot(normal, kToLight)));
}

Colour grey(double value)
{
    return {value, value, value};
}

class LitMeshes : public Scene
{
public:
    LitMeshes()
    {
        const auto set = [](GLenum name, double value) {
            const auto part = static_cast<GLfloat>(value);
            const GLfloat colour[]{part, part, part, 1};
            glLightfv(GL_LIGHT0, name, colour);
        };
        set(GL_AMBIENT, kAmbient);
        set(GL_DIFFUSE, kDiffuse);
        const GLfloat toLight[]{static_cast<GLfloat>(kToLight.x), static_cast<GLfloat>(kToLight.y),
                                static_cast<GLfloat>(kToLight.z), 0};
        glLightfv(GL_LIGHT0, GL_POSITION, toLight);
        const GLfloat none[]{0, 0, 0, 1};
        glLightModelfv(GL_LIGHT_MODEL_AMBIENT, none);
        glEnable(GL_LIGHTING);
        glEnable(GL_LIGHT0);
        glEnable(GL_COLOR_MATERIAL);
        glEnable(GL_DEPTH_TEST);
        glColor4f(1, 1, 1, 1);
    }

    /// The middle of a pixel in parts of the radius from the centre, y upwards.
    static Vector placeOf(int x, int y)
    {
        return {(x + 0.5 - kCentreX) / kRadius, (kHeight - y - 0.5 - kCentreY) / kRadius, 0};
    }

    /// The side of a unit sphere that looks at the viewer, or away from him; only within the unit circle.
    static Vector normalOf(int x, int y, double side = 1)
    {
        Vector normal = placeOf(x, y);
        normal.z = side * std::sqrt(1 - dot(normal, normal));
        return normal;
    }

    using Draw = void(float radius, CVQPoint* centre, bool flag);

    void draw(Draw* mesh, float radius = kRadius, bool flag = false)
    {
        clear();
        CVQPoint centre(kCentreX, kCentreY, -20);
        mesh(radius, &centre, flag);
        readBack();
    }

    /// Calls back for each pixel whose middle lies within a part of the radius.
    template <typename Visit>
    static void within(double part, Visit visit)
    {
        for (int y = 0; y < kHeight; ++y)
            for (int x = 0; x < kWidth; ++x)
                if (dot(placeOf(x, y), placeOf(x, y)) < part * part)
                    visit(x, y);
    }

    /// The root of the mean squared difference from Lambert's law.
    double unevenness(Draw* sphere)
    {
        draw(sphere);
        double sum = 0;
        int count = 0;
        within(0.9, [&](int x, int y) {
            const double difference = at(x, y).r - lambert(normalOf(x, y));
            sum += difference * difference;
            ++count;
        });
        return std::sqrt(sum / count);
    }
};

TEST_F(LitMeshes, OfHighResolutionAreSmoothSpheres)
{
    draw(Facade::DrawSphereHighRes);
    // Between vertices 10 degrees apart the cosine is at most 1 - cos(5 degrees) = 0.4 % too small; where the light
    // ends it has a corner, which triangles cut by a quarter of their 0.17.
    within(0.95, [&](int x, int y) {
        const Vector normal = normalOf(x, y);
        const bool nearTheLightsEnd = dot(normal, kToLight) < 0.18;
        EXPECT_TRUE(shows(x, y, grey(lambert(normal)), nearTheLightsEnd ? 12 : 4));
    });
}

TEST_F(LitMeshes, ComeNearerToSpheresTheFinerTheyAre)
{
    const double low = unevenness(Facade::DrawSphereLowRes);
    const double mid = unevenness(Facade::DrawSphereMidRes);
    const double high = unevenness(Facade::DrawSphereHighRes);
    EXPECT_LT(mid, low / 2);
    EXPECT_LT(high, mid / 2);
    EXPECT_LT(high, 2);
}

TEST_F(LitMeshes, AreSpheresOfTheirRadiusAroundTheirCentre)
{
    for (const float radius : {12.0F, 50.0F}) {
        draw(Facade::DrawSphereHighRes, radius);
        for (int y = 0; y < kHeight; ++y)
            for (int x = 0; x < kWidth; ++x) {
                const Vector place = placeOf(x, y);
                const double distanceInPixels = std::sqrt(dot(place, place)) * kRadius;
                // Sides of 10 degrees are 0.4 % within the circle.
                ASSERT_TRUE(distanceInPixels < radius || isUntouched(x, y)) << x << ", " << y;
                ASSERT_TRUE(distanceInPixels > radius * 0.99 - 1 || !isUntouched(x, y)) << x << ", " << y;
            }
    }
}

TEST_F(LitMeshes, AreAsBrightWhateverTheirRadius)
{
    for (const float radius : {3.0F, 50.0F, 500.0F}) {
        draw(Facade::DrawSphereHighRes, radius);
        EXPECT_TRUE(shows(79, 59, grey(lambert({0, 0, 1})), radius < 10 ? 25 : 4)) << radius;
    }
}

TEST_F(LitMeshes, HaveTheDepthOfASphere)
{
    draw(Facade::DrawSphereHighRes);
    GLfloat depth = 0;
    glReadPixels(80, 60, 1, 1, GL_DEPTH_COMPONENT, GL_FLOAT, &depth);
    EXPECT_NEAR(1000 - 2000.0 * static_cast<double>(depth), -20 + kRadius, 0.3); // seen from 1000 down to -1000
}

TEST_F(LitMeshes, OfATranslucentSphereShowTheFarSideThroughTheNearOne)
{
    glEnable(GL_BLEND);
    glColor4f(1, 1, 1, 0.5F);
    draw(Facade::DrawSphereHighRes, kRadius, true);
    within(0.9, [&](int x, int y) {
        const Vector front = normalOf(x, y);
        const Vector back = normalOf(x, y, -1);
        const Colour behind = over(grey(lambert(back)), 127.5, kBackground);
        const bool nearTheLightsEnd = dot(front, kToLight) < 0.18 || std::fabs(dot(back, kToLight)) < 0.18;
        EXPECT_TRUE(shows(x, y, over(grey(lambert(front)), 127.5, behind), nearTheLightsEnd ? 8 : 4));
    });
}

TEST_F(LitMeshes, HideWhatLiesBehindThem)
{
    clear();
    CVQPoint behind(kCentreX, kCentreY, -200);
    CVQPoint before(kCentreX, kCentreY, 100);
    glColor4f(1, 1, 1, 1);
    Facade::DrawSphereMidRes(20, &before, false);
    glColor4f(1, 0, 0, 1);
    Facade::DrawSphereMidRes(50, &behind, false);
    readBack();
    EXPECT_TRUE(shows(80, 60, grey(lambert({0, 0, 1})), 10));
    EXPECT_TRUE(shows(40, 60, {lambert(normalOf(40, 60)), 0, 0}, 10));
}

TEST_F(LitMeshes, OfDisksAreEvenOctagons)
{
    draw(Facade::DrawDiskLowRes);
    const Colour expected = grey(lambert({0, 0, 1}));
    const double inner = std::cos(std::numbers::pi / 8); // of a side's middle
    int covered = 0;
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x)
            if (!isUntouched(x, y)) {
                ++covered;
                ASSERT_TRUE(shows(x, y, expected));
            }
    EXPECT_NEAR(covered, 2 * std::numbers::sqrt2 * kRadius * kRadius, 60); // its perimeter is 306
    for (int corner = 0; corner < 8; ++corner) {
        const auto pixelAt = [&](double turn, double part) {
            const double angle = turn * std::numbers::pi / 4;
            return CPoint(static_cast<int>(kCentreX + part * kRadius * std::cos(angle)),
                          static_cast<int>(kCentreY + part * kRadius * std::sin(angle)));
        };
        const CPoint atCorner = pixelAt(corner, 0.96);
        EXPECT_FALSE(isUntouched(atCorner.x, atCorner.y)) << corner;
        const CPoint beyondSide = pixelAt(corner + 0.5, inner + 0.04);
        EXPECT_TRUE(isUntouched(beyondSide.x, beyondSide.y)) << corner;
    }
}

TEST_F(LitMeshes, OfDisksLookAlongTheZAxis)
{
    const auto turnAround = [] {
        glTranslated(kCentreX, kCentreY, 0);
        glRotated(180, 1, 0, 0);
        glTranslated(-kCentreX, -kCentreY, 0);
    };
    glEnable(GL_CULL_FACE);
    draw(Facade::DrawDiskLowRes);
    EXPECT_FALSE(isUntouched(80, 60));
    turnAround();
    draw(Facade::DrawDiskLowRes);
    EXPECT_TRUE(isUntouched(80, 60)) << "seen from behind, and culled";
    draw(Facade::DrawDiskLowRes, kRadius, true);
    EXPECT_TRUE(shows(80, 60, grey(lambert({0, 0, -1})))) << "drawn all the same, with the light behind it";
}

TEST_F(LitMeshes, AreAsRoundAsGLUsOwnQuadrics)
{
    using Data = VQTestAccess::FacadeData;
    Facade::DrawQuadPre();
    ASSERT_TRUE(Data::quadric());
    const auto drawQuadric = [](float radius, CVQPoint* centre, bool) {
        glPushMatrix();
        glTranslated(centre->x, centre->y, centre->z);
        gluSphere(Data::quadric(), static_cast<double>(radius), 36, 36);
        glPopMatrix();
    };
    const double quadric = unevenness(drawQuadric);
    gluDeleteQuadric(std::exchange(Data::quadric(), nullptr)); // the facade keeps it to the end, deliberately
    EXPECT_LT(quadric, 2) << "filled and smooth, as the facade prepares it";
    EXPECT_NEAR(unevenness(Facade::DrawSphereHighRes), quadric, 0.5);
}

} // namespace
} // namespace vq::test::meshPixelsTests
