// SPDX-License-Identifier: MIT
#include "gl/GLState.h"
#include "unit/vqview/view/ViewScene.h"
#include "vqview/view/Camera.h"

namespace vqview::test {
namespace {

constexpr Parts kAll{true, true, true, 1.5F};

class SceneState : public ViewScene
{
public:
    void showSomething()
    {
        scene->setModel(
            joined(*makeRectangle({50, 40, -50}, {150, 60, -50}), *makeRectangle({30, 20, 40}, {90, 80, -40})));
        scene->setSelected({0, 1, 5});
    }

    std::vector<Colour> pixels()
    {
        std::vector<Colour> all;
        for (int y = 0; y < kHeight; ++y)
            for (int x = 0; x < kWidth; ++x)
                all.push_back(at(x, y));
        return all;
    }
};

TEST_F(SceneState, OpenGLIsAfterwardsAsItWas)
{
    vq::test::makeStateUnusual();
    showSomething();
    for (int frame = 0; frame < 2; ++frame) {
        const auto before = vq::test::currentState();
        scene->draw(pixelView, true, true, true, 1);
        EXPECT_EQ(vq::test::changes(before, vq::test::currentState()), "") << "frame " << frame;
    }
    std::vector<float> depth;
    const auto before = vq::test::currentState();
    scene->readDepth(pixelView, depth);
    EXPECT_EQ(vq::test::changes(before, vq::test::currentState()), "");
}

/// What would change each pixel that is drawn.
void switchOnWhatShows()
{
    constexpr GLubyte kBlackTexel[4]{0, 0, 0, 255};
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, 1, 1, 0, GL_RGBA, GL_UNSIGNED_BYTE, kBlackTexel);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    for (const GLenum capability :
         {GL_TEXTURE_2D, GL_FOG, GL_BLEND, GL_LINE_STIPPLE, GL_POLYGON_STIPPLE, GL_COLOR_MATERIAL, GL_LIGHT5})
        glEnable(capability);
}

TEST_F(SceneState, APictureDoesNotDependOnWhatTheHostHasSet)
{
    showSomething();
    draw(kAll);
    const std::vector<Colour> usual = pixels();
    std::vector<float> usualDepth;
    scene->readDepth(pixelView, usualDepth);

    vq::test::makeStateUnusual();
    switchOnWhatShows();
    scene->draw(pixelView, kAll.faces, kAll.edges, kAll.vertices, kAll.scale);
    std::vector<float> depth;
    scene->readDepth(pixelView, depth);
    EXPECT_EQ(depth, usualDepth);
    glPixelTransferf(GL_RED_SCALE, 1); // for reading back
    glPopClientAttrib();
    readBack();
    const std::vector<Colour> unusual = pixels();
    for (std::size_t pixel = 0; pixel < usual.size(); ++pixel) {
        ASSERT_EQ(usual[pixel].red, unusual[pixel].red) << "pixel " << pixel;
        ASSERT_EQ(usual[pixel].green, unusual[pixel].green) << "pixel " << pixel;
        ASSERT_EQ(usual[pixel].blue, unusual[pixel].blue) << "pixel " << pixel;
    }
}

TEST_F(SceneState, OnlyTheViewportIsDrawnInto)
{
    glClearColor(1, 0, 1, 1);
    glClear(GL_COLOR_BUFFER_BIT);
    showSomething();
    SVQGLVariables view = pixelView;
    view.m_iViewport[0] = 10;
    view.m_iViewport[1] = 20;
    view.m_iViewport[2] = 100;
    view.m_iViewport[3] = 70;
    draw(view, kAll);
    constexpr Colour kCleared{255, 0, 255};
    EXPECT_EQ(count(kCleared), kWidth * kHeight - 100 * 70);
    EXPECT_EQ(count(kCleared, 10, 20, 110, 90), 0);
    std::vector<float> depth;
    scene->readDepth(view, depth);
    EXPECT_EQ(depth.size(), std::size_t{100} * 70);
}

TEST_F(SceneState, AWindowOfOnePixelIsDrawnInto)
{
    showSomething();
    Camera camera;
    camera.setSize(1, 1);
    camera.fit(boundsOf({{30, 20, -50}, {150, 80, 40}}));
    glClearColor(1, 0, 1, 1);
    glClear(GL_COLOR_BUFFER_BIT);
    draw(camera.variables(), kAll);
    constexpr Colour kCleared{255, 0, 255};
    EXPECT_EQ(count(kCleared), kWidth * kHeight - 1);
    EXPECT_FALSE(shows(0, 0, kCleared));
}

int displayLists()
{
    int found = 0;
    for (GLuint name = 1; name < 100; ++name)
        found += glIsList(name);
    return found;
}

TEST_F(SceneState, DisplayListsGoWithTheModelAndTheDrawing)
{
    showSomething();
    draw(kAll);
    draw(kAll);
    EXPECT_EQ(displayLists(), 3);
    showSomething();
    EXPECT_EQ(displayLists(), 0);
    draw({.faces = true});
    EXPECT_EQ(displayLists(), 1);
    scene.reset();
    EXPECT_EQ(displayLists(), 0);
}

} // namespace
} // namespace vqview::test
