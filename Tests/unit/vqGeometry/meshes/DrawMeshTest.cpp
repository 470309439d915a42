// SPDX-License-Identifier: MIT
#include "Platform/Platform.h"
#include "support/GLRecorder.h"
#include "vqGeometry/VQDiskMesh.h"
#include "vqGeometry/VQSphericalMesh.h"

#include <cmath>
#include <limits>

namespace vq::test {
namespace {

const GLCalls kPushed{call("glPushAttrib", GL_TRANSFORM_BIT | GL_POLYGON_BIT | GL_ENABLE_BIT | GL_CURRENT_BIT),
                      call("glPushClientAttrib", GL_CLIENT_VERTEX_ARRAY_BIT), call("glMatrixMode", GL_MODELVIEW),
                      call("glPushMatrix")};
const GLCalls kPopped{call("glPopMatrix"), call("glPopClientAttrib"), call("glPopAttrib")};
const GLCalls kArrays{call("glEnable", GL_NORMALIZE), call("glInterleavedArrays", GL_N3F_V3F, 0)};

GLCall triangles(int count)
{
    return call("glDrawElements", GL_TRIANGLES, 3 * count, GL_UNSIGNED_INT);
}

/// Every test starts with empty lists.
class MeshDrawing : public testing::Test
{
public:
    MeshDrawing()
    {
        takeGLCalls();
        takeGLVertices();
    }
};

TEST_F(MeshDrawing, PutsTheStateBackInReverseOrder)
{
    CVQSphericalMesh sphere(8, 8);
    CVQPoint centre(1, -2, 3.5);
    sphere.Draw(2.5f, &centre, false);
    const GLCalls placed{call("glTranslated", 1, -2, 3.5), call("glScalef", 2.5, 2.5, 2.5)};
    EXPECT_EQ(takeGLCalls(), inOrder(kPushed, placed, kArrays, GLCalls{triangles(112)}, kPopped));
}

TEST_F(MeshDrawing, WithoutACentreStaysAtTheOrigin)
{
    CVQDiskMesh disk(8);
    disk.Draw(1, nullptr, false);
    EXPECT_EQ(takeGLCalls(),
              inOrder(kPushed, GLCalls{call("glScalef", 1, 1, 1)}, kArrays, GLCalls{triangles(8)}, kPopped));
}

TEST_F(MeshDrawing, FromBackToFrontDrawsEachSideOnce)
{
    CVQSphericalMesh sphere(36, 36);
    sphere.Draw(1, nullptr, true);
    const GLCalls sides{call("glEnable", GL_CULL_FACE), call("glCullFace", GL_FRONT), triangles(2520),
                        call("glCullFace", GL_BACK), triangles(2520)};
    EXPECT_EQ(takeGLCalls(), inOrder(kPushed, GLCalls{call("glScalef", 1, 1, 1)}, kArrays, sides, kPopped));
    const std::vector<GLVertices> drawn = takeGLVertices();
    ASSERT_EQ(drawn.size(), 2u);
    EXPECT_EQ(drawn[0], drawn[1]);
}

TEST_F(MeshDrawing, HandsOverVerticesOfTheUnitSphereWithTheirNormals)
{
    CVQSphericalMesh sphere(18, 18);
    sphere.Draw(7, nullptr, false);
    const std::vector<GLVertices> drawn = takeGLVertices();
    ASSERT_EQ(drawn.size(), 1u);
    ASSERT_EQ(drawn[0].size(), 3u * 2 * 18 * 17);
    for (const auto& vertex : drawn[0]) {
        const double length = std::hypot(vertex[3], vertex[4], vertex[5]);
        EXPECT_NEAR(length, 1, 3e-7);
        for (std::size_t i = 0; i < 3; ++i)
            EXPECT_EQ(vertex[i], vertex[i + 3]);
    }
}

TEST_F(MeshDrawing, ARadiusThatIsNoneDrawsNothing)
{
    CVQSphericalMesh sphere(8, 8);
    CVQDiskMesh disk(8);
    for (const float radius : {0.0f, -0.0f, -1.0f, std::nanf(""), std::numeric_limits<float>::infinity()}) {
        sphere.Draw(radius, nullptr, false);
        disk.Draw(radius, nullptr, true);
    }
    EXPECT_EQ(takeGLCalls(), GLCalls());
}

TEST_F(MeshDrawing, MakingAndDeletingCallsNoOpenGL)
{
    delete new CVQSphericalMesh(36, 36);
    delete new CVQDiskMesh(8);
    EXPECT_EQ(takeGLCalls(), GLCalls());
}

} // namespace
} // namespace vq::test
