// SPDX-License-Identifier: MIT
#include "support/offscreen/OffScreenContext.h"

#include <gtest/gtest.h>

namespace vq::test {
namespace {

std::unique_ptr<OffScreenContext> contextOf(int width, int height)
{
    std::string reason;
    auto context = OffScreenContext::make(width, height, reason);
    EXPECT_TRUE(context) << reason;
    return context;
}

/// Clears one pixel, counted from the lower left as OpenGL does.
void clearPixel(int x, int y, float r, float g, float b, float alpha)
{
    glEnable(GL_SCISSOR_TEST);
    glScissor(x, y, 1, 1);
    glClearColor(r, g, b, alpha);
    glClear(GL_COLOR_BUFFER_BIT);
}

TEST(OffScreenContext, GivesItsPictureFromTheTopAndOpaque)
{
    const auto context = contextOf(3, 2);
    ASSERT_TRUE(context);
    glClear(GL_COLOR_BUFFER_BIT);
    clearPixel(0, 0, 1, 0, 0, 0.5F);
    clearPixel(2, 1, 0, 128.0F / 255, 1, 0);
    CVQDIB image(50, 50);
    context->copyTo(image);
    ASSERT_EQ(image.GetWidth(), 3);
    ASSERT_EQ(image.GetHeight(), 2);
    EXPECT_EQ(image.GetColor(0, 1), 0xFFFF0000u);
    EXPECT_EQ(image.GetColor(2, 0), 0xFF0080FFu);
    EXPECT_EQ(image.GetColor(1, 0), 0xFF000000u);
}

TEST(OffScreenContext, ReadsItsPictureWhateverThePackingIs)
{
    const auto context = contextOf(5, 3);
    ASSERT_TRUE(context);
    clearPixel(4, 2, 1, 1, 1, 1);
    glPixelStorei(GL_PACK_ROW_LENGTH, 100);
    glPixelStorei(GL_PACK_SKIP_ROWS, 9);
    CVQDIB image(1, 1);
    context->copyTo(image);
    EXPECT_EQ(image.GetColor(4, 0), 0xFFFFFFFFu);
    GLint length = 0;
    glGetIntegerv(GL_PACK_ROW_LENGTH, &length);
    EXPECT_EQ(length, 100);
}

TEST(OffScreenContext, BeginsAsOpenGLDoesWithItsPictureAsViewport)
{
    const auto context = contextOf(30, 20);
    ASSERT_TRUE(context);
    for (const GLenum name : {GL_VIEWPORT, GL_SCISSOR_BOX}) {
        GLint box[4]{};
        glGetIntegerv(name, box);
        EXPECT_EQ(std::to_array(box), (std::array<GLint, 4>{0, 0, 30, 20}));
    }
    EXPECT_TRUE(glIsEnabled(GL_DITHER));
    EXPECT_FALSE(glIsEnabled(GL_DEPTH_TEST));
    GLint bits = 0;
    glGetIntegerv(GL_DEPTH_BITS, &bits);
    EXPECT_GE(bits, 24);
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
}

TEST(OffScreenContext, CanBeMadeAgainAndAgain)
{
    for (int size = 1; size <= 5; ++size) {
        const auto context = contextOf(size, 2 * size);
        ASSERT_TRUE(context);
        clearPixel(size - 1, 2 * size - 1, 0, 1, 0, 1);
        CVQDIB image(1, 1);
        context->copyTo(image);
        EXPECT_EQ(image.GetColor(size - 1, 0), 0xFF00FF00u);
    }
}

} // namespace
} // namespace vq::test
