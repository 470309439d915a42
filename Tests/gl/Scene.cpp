// SPDX-License-Identifier: MIT
#include "gl/Scene.h"

#include <stdexcept>

namespace vq::test {

Scene::Scene()
{
    std::string reason;
    m_context = OffScreenContext::make(kWidth, kHeight, reason);
    if (!m_context)
        throw std::runtime_error("no OpenGL context: " + reason); // which fails the test
    view.m_iViewport[2] = kWidth;
    view.m_iViewport[3] = kHeight;
    glMatrixMode(GL_PROJECTION);
    glOrtho(0, kWidth, 0, kHeight, -1000, 1000);
    glMatrixMode(GL_MODELVIEW);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    clear();
}

Scene::~Scene()
{
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
}

void Scene::clear()
{
    glClearColor(static_cast<float>(kBackground.r / 255), static_cast<float>(kBackground.g / 255),
                 static_cast<float>(kBackground.b / 255), 1);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
}

void Scene::draw(CVQDragObject& shape)
{
    clear();
    shape.Draw(view);
    readBack();
}

void Scene::readBack()
{
    m_context->copyTo(m_picture);
    ASSERT_EQ(m_picture.GetWidth(), kWidth);
}

Colour Scene::at(int x, int y)
{
    const ULONG pixel = m_picture.GetColor(x, y);
    return {static_cast<double>(pixel >> 16 & 0xFF), static_cast<double>(pixel >> 8 & 0xFF),
            static_cast<double>(pixel & 0xFF)};
}

bool Scene::isUntouched(int x, int y)
{
    return distance(at(x, y), kBackground) == 0;
}

testing::AssertionResult Scene::shows(int x, int y, const Colour& expected, double tolerance)
{
    if (distance(at(x, y), expected) <= tolerance)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "pixel (" << x << ", " << y << ") is " << testing::PrintToString(at(x, y))
                                       << " instead of " << testing::PrintToString(expected);
}

double Scene::share(int x, int y, double alpha, const Colour& below)
{
    return (at(x, y).r - below.r) / (over(kShapeInk, alpha, below).r - below.r);
}

} // namespace vq::test
