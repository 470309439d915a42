// SPDX-License-Identifier: MIT
#include "vqview/overlay/ViewImage.h"
#include "unit/vqview/overlay/OverlayFixture.h"

#include <cmath>
#include <random>

namespace vqview::test {
namespace {

class ViewImage : public FrameTest
{
public:
    /// Every channel of every pixel differs from its neighbours'.
    void fillFrame()
    {
        for (int y = 0; y < kHeight; ++y)
            for (int x = 0; x < kWidth; ++x) {
                glEnable(GL_SCISSOR_TEST);
                glScissor(x, y, 1, 1);
                glClearColor(static_cast<float>(x) / 255, static_cast<float>(y) / 255,
                             static_cast<float>((x * 7 + y * 13) % 256) / 255, 1);
                glClear(GL_COLOR_BUFFER_BIT);
            }
        glDisable(GL_SCISSOR_TEST);
    }
    /// What `fillFrame` has put there; y downwards.
    static ULONG filledAt(LONG x, LONG y)
    {
        const LONG up = kHeight - 1 - y;
        return opaque(
            CVQColor(static_cast<BYTE>(x), static_cast<BYTE>(up), static_cast<BYTE>((x * 7 + up * 13) % 256)));
    }
};

double channel(ULONG word, int byte)
{
    return word >> (8 * byte) & 0xFF;
}

/// The largest distance of a pixel's channels from the exact blend of `over` and `under`.
double errorOf(ULONG seen, ULONG over, ULONG under)
{
    const double alpha = channel(over, 3) / 255;
    double error = 0;
    for (int byte = 0; byte < 3; ++byte)
        error = std::max(
            error, std::fabs(channel(seen, byte) - channel(over, byte) * alpha - channel(under, byte) * (1 - alpha)));
    return error;
}

TEST_F(ViewImage, CopiesTheFrameExactlyAndOpaque)
{
    fillFrame();
    CVQDIB image(3, 5);
    copyFrame(image, view);
    ASSERT_EQ(image.GetWidth(), kWidth);
    ASSERT_EQ(image.GetHeight(), kHeight);
    for (LONG y = 0; y < kHeight; ++y)
        for (LONG x = 0; x < kWidth; ++x)
            ASSERT_EQ(image.GetColor(x, y), filledAt(x, y)) << x << ", " << y;
}

TEST_F(ViewImage, CopiesOnlyTheViewport)
{
    fillFrame();
    view.m_iViewport[0] = 10;
    view.m_iViewport[1] = 20;
    view.m_iViewport[2] = 7;
    view.m_iViewport[3] = 5;
    CVQDIB image(1, 1);
    copyFrame(image, view);
    ASSERT_EQ(image.GetWidth(), 7);
    ASSERT_EQ(image.GetHeight(), 5);
    EXPECT_EQ(image.GetColor(0, 4), filledAt(10, kHeight - 1 - 20)); // lower left
    EXPECT_EQ(image.GetColor(6, 0), filledAt(16, kHeight - 1 - 24));
}

TEST_F(ViewImage, LeavesTheImageOfAnEmptyViewport)
{
    view.m_iViewport[2] = 0;
    Canvas image(4, 3);
    copyFrame(image, view);
    EXPECT_EQ(image.GetWidth(), 4);
    EXPECT_TRUE(isBlank(image));
}

TEST_F(ViewImage, OverTheFrameKeepsOrReplacesPixelsExactly)
{
    fillFrame();
    std::mt19937 random(17);
    Canvas image(kWidth, kHeight);
    for (LONG i = 0; i < kWidth * kHeight; ++i)
        image[i] = (random() & 0xFFFFFF) | (random() % 2 != 0 ? 0xFF000000U : 0);
    drawOver(image, view);
    readBack();
    for (LONG y = 0; y < kHeight; ++y)
        for (LONG x = 0; x < kWidth; ++x) {
            const ULONG above = image.GetColor(x, y);
            ASSERT_EQ(frame.GetColor(x, y), above >> 24 != 0 ? above : filledAt(x, y)) << x << ", " << y;
        }
}

TEST_F(ViewImage, OverTheFrameBlendsByStraightAlpha)
{
    fillFrame();
    std::mt19937 random(23);
    Canvas image(kWidth, kHeight);
    for (LONG i = 0; i < kWidth * kHeight; ++i)
        image[i] = static_cast<ULONG>(random());
    image(5, 5) = 0x80FFFFFFU;
    drawOver(image, view);
    readBack();
    for (LONG y = 0; y < kHeight; ++y)
        for (LONG x = 0; x < kWidth; ++x)
            ASSERT_LE(errorOf(frame.GetColor(x, y), image.GetColor(x, y), filledAt(x, y)), 1.0) << x << ", " << y;
}

TEST_F(ViewImage, LargerThanTheViewportIsCutOff)
{
    view.m_iViewport[0] = 30;
    view.m_iViewport[1] = 40;
    view.m_iViewport[2] = 20;
    view.m_iViewport[3] = 10;
    Canvas image(kWidth, kHeight);
    image.Clear(Gdiplus::Color(255, 1, 2, 3));
    drawOver(image, view);
    readBack();
    const LONG top = kHeight - 50;
    EXPECT_EQ(countOf(frame, 0xFF010203U, {30, top, 50, top + 10}), 200);
    EXPECT_EQ(countOf(frame, 0xFF010203U, {0, 0, kWidth, kHeight}), 200);
}

TEST_F(ViewImage, SmallerThanTheViewportLiesInItsUpperLeft)
{
    Canvas image(6, 4);
    image.Clear(Gdiplus::Color(255, 1, 2, 3));
    drawOver(image, view);
    readBack();
    EXPECT_EQ(countOf(frame, 0xFF010203U, {0, 0, 6, 4}), 24);
    EXPECT_EQ(countOf(frame, 0xFF010203U, {0, 0, kWidth, kHeight}), 24);
}

TEST_F(ViewImage, MindsNoStateOfOpenGLAndLeavesIt)
{
    glEnable(GL_DEPTH_TEST);
    glDepthFunc(GL_NEVER);
    glEnable(GL_ALPHA_TEST);
    glAlphaFunc(GL_NEVER, 0);
    glEnable(GL_SCISSOR_TEST);
    glScissor(0, 0, 1, 1);
    glPixelTransferf(GL_RED_BIAS, 0.5F);
    glPixelZoom(3, 3);
    glPixelStorei(GL_UNPACK_ROW_LENGTH, 3);
    glPixelStorei(GL_PACK_ALIGNMENT, 8);
    glMatrixMode(GL_TEXTURE);
    Canvas image(kWidth, kHeight);
    image.Clear(Gdiplus::Color(255, 9, 8, 7));

    drawOver(image, view);
    Canvas copy(1, 1);
    copyFrame(copy, view);

    EXPECT_EQ(countOf(copy, 0xFF090807U, {0, 0, kWidth, kHeight}), kWidth * kHeight);
    GLint number = 0;
    const auto has = [&number](GLenum what, GLint expected) {
        glGetIntegerv(what, &number);
        EXPECT_EQ(number, expected) << std::hex << what;
    };
    has(GL_DEPTH_FUNC, GL_NEVER);
    has(GL_ALPHA_TEST, 1);
    has(GL_SCISSOR_TEST, 1);
    has(GL_BLEND, 0);
    has(GL_ZOOM_X, 3);
    has(GL_UNPACK_ROW_LENGTH, 3);
    has(GL_PACK_ALIGNMENT, 8);
    has(GL_MATRIX_MODE, GL_TEXTURE);
    float bias = 0;
    glGetFloatv(GL_RED_BIAS, &bias);
    EXPECT_EQ(bias, 0.5F);
    std::array<double, 16> matrix{};
    glGetDoublev(GL_PROJECTION_MATRIX, matrix.data());
    EXPECT_EQ(matrix, kIdentity);
}

} // namespace
} // namespace vqview::test
