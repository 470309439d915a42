// SPDX-License-Identifier: MIT
// Labels lie where OpenGL puts what they name.
#include "gl/Scene.h"

#include "VQDraw/VQText.h"
#include "unit/VQDraw/draw/DrawnImage.h"

#include <random>

namespace vq::test {
namespace {

struct Anchor
{
    float x, y, z;
};

class LabelPlace : public Scene
{
public:
    /// A camera as views have it: in perspective, turned, looking down on the anchors.
    LabelPlace()
    {
        glMatrixMode(GL_PROJECTION);
        glLoadIdentity();
        gluPerspective(40, static_cast<double>(kWidth) / kHeight, 1, 100);
        glMatrixMode(GL_MODELVIEW);
        gluLookAt(6, 5, 9, 0, 0, 0, 0, 1, 0);
        glGetDoublev(GL_MODELVIEW_MATRIX, view.m_dModelView);
        glGetDoublev(GL_PROJECTION_MATRIX, view.m_dProjection);
        glGetIntegerv(GL_VIEWPORT, view.m_iViewport);
    }

    /// The pixel that OpenGL gives a point at the anchor.
    CPoint drawnPixel(const Anchor& anchor)
    {
        clear();
        glBegin(GL_POINTS);
        glVertex3f(anchor.x, anchor.y, anchor.z);
        glEnd();
        readBack();
        for (int y = 0; y < kHeight; ++y)
            for (int x = 0; x < kWidth; ++x)
                if (!isUntouched(x, y))
                    return {x, y};
        ADD_FAILURE() << "no pixel is drawn";
        return {};
    }
};

TEST_F(LabelPlace, IsOneRowAboveTheAnchorsPixel)
{
    std::mt19937 random(11);
    std::uniform_real_distribution<float> any(-2, 2);
    for (int round = 0; round < 40; ++round) {
        const Anchor anchor{any(random), any(random), any(random)};
        const CPoint pixel = drawnPixel(anchor);
        CVQText labels;
        labels.Add(VQ_TEXT_FREE, anchor.x, anchor.y, anchor.z, L"M");
        SmoothImage image(kWidth, kHeight);
        labels.Draw(&image, 0, 0, view.m_dModelView, view.m_dProjection, view.m_iViewport);
        SmoothImage expected(kWidth, kHeight);
        expected.TextOutW(pixel.x, pixel.y - 1, L"M"); // one less than the height, and then cut towards zero
        ASSERT_GT(findDrawn(image).count, 0);
        ASSERT_TRUE(samePixels(pixels(image), pixels(expected), kWidth)) << "round " << round;
    }
}

} // namespace
} // namespace vq::test
