// SPDX-License-Identifier: MIT
#include "gl/Scene.h"

#include "vqCommonBase/VQDisplayAPI.h"

namespace vq::test {
namespace {

/// The display has this scale as long as it lives.
class DisplayScale
{
public:
    explicit DisplayScale(float factor) : m_former(CVQDisplayAPI::GetScaleFactor())
    {
        CVQDisplayAPI::SetScaleFactor(factor);
    }
    ~DisplayScale() { CVQDisplayAPI::SetScaleFactor(m_former); }
    DisplayScale(const DisplayScale&) = delete;
    DisplayScale& operator=(const DisplayScale&) = delete;

private:
    float m_former;
};

const CRect kBox(30, 20, 110, 90);

/// From each corner to the opposite one.
constexpr std::pair<CPoint, CPoint> kDirections[]{
    {{30, 20}, {110, 90}}, {{110, 20}, {30, 90}}, {{30, 90}, {110, 20}}, {{110, 90}, {30, 20}}};

class BoxPixels : public Scene
{
public:
    /// Lines of 2 pixels cover one on either side of an edge, and OpenGL may be one pixel off.
    static constexpr int kOffEdge = 2;

    CVQDragBox box;
};

TEST_F(BoxPixels, AreFilledAtAQuarterOfTheAlpha)
{
    for (const LONG alpha : {200, 255, 100, 4, 3, 0})
        for (const auto& [from, to] : kDirections) {
            useInk(box, alpha);
            drag(box, from, to);
            draw(box);
            const Colour filled = over(kShapeInk, static_cast<double>(alpha / 4), kBackground);
            for (int y = kBox.top + kOffEdge; y < kBox.bottom - kOffEdge; ++y)
                for (int x = kBox.left + kOffEdge; x < kBox.right - kOffEdge; ++x)
                    ASSERT_TRUE(shows(x, y, filled)) << "alpha " << alpha;
        }
}

TEST_F(BoxPixels, LeaveAllOutsideUntouched)
{
    for (const auto& [from, to] : kDirections) {
        drag(box, from, to);
        draw(box);
        EXPECT_TRUE(isUntouchedWhere([](int x, int y) {
            return x < kBox.left - kOffEdge || x >= kBox.right + kOffEdge || y < kBox.top - kOffEdge ||
                   y >= kBox.bottom + kOffEdge;
        }));
    }
}

/// An edge of a box, from the corner where its pattern begins.
struct Edge
{
    CPoint from, to;
};

class BoxEdges : public BoxPixels
{
public:
    /// How many of the pixels across an edge have the outline's colour; every other one has what lies below.
    ///
    /// @param step pixels from the edge's beginning
    int litAcross(const Edge& edge, int step, int reach, double alpha)
    {
        const int dx = (edge.to.x > edge.from.x) - (edge.to.x < edge.from.x);
        const int dy = (edge.to.y > edge.from.y) - (edge.to.y < edge.from.y);
        int lit = 0;
        for (int across = -reach; across < reach; ++across) {
            // Pixels left of a point, or above it, have the next smaller number.
            const int x = dx != 0 ? edge.from.x + dx * step - (dx < 0) : edge.from.x + across;
            const int y = dy != 0 ? edge.from.y + dy * step - (dy < 0) : edge.from.y + across;
            const Colour below = kBox.PtInRect(CPoint(x, y)) ? over(kShapeInk, alpha / 4, kBackground) : kBackground;
            if (shows(x, y, over(kShapeInk, alpha, below), 2))
                ++lit;
            else
                EXPECT_TRUE(shows(x, y, below)) << "step " << step;
        }
        return lit;
    }

    void expectStipple(const Edge& edge, int thickness, double alpha)
    {
        const int length = std::abs(edge.to.x - edge.from.x) + std::abs(edge.to.y - edge.from.y);
        const int reach = thickness / 2 + 1;
        for (int step = 0; step < length; ++step) {
            const bool certain = step % 4 == 1 || step % 4 == 2; // OpenGL may be one pixel off
            const bool nearACorner = step <= reach || step >= length - reach - 1;
            if (!certain || nearACorner)
                continue;
            const bool on = step / 4 % 2 == 0;
            ASSERT_EQ(litAcross(edge, step, reach, alpha), on ? thickness : 0) << "step " << step;
        }
    }

    void expectStippledEdges(int thickness)
    {
        for (const auto& [from, to] : kDirections) {
            useInk(box, 200);
            drag(box, from, to);
            draw(box);
            const Edge edges[]{
                {from, {to.x, from.y}}, {from, {from.x, to.y}}, {{to.x, from.y}, to}, {to, {from.x, to.y}}};
            for (const Edge& edge : edges) {
                SCOPED_TRACE(testing::Message() << "edge from " << edge.from.x << ", " << edge.from.y << " to "
                                                << edge.to.x << ", " << edge.to.y);
                expectStipple(edge, thickness, 200);
            }
        }
    }
};

TEST_F(BoxEdges, AreTwoPixelsWideFourOnAndFourOffFromTheirOwnBeginning)
{
    const DisplayScale scale(1);
    expectStippledEdges(2);
}

TEST_F(BoxEdges, AreAsWideAsTheDisplaysScaleSays)
{
    const DisplayScale scale(2);
    expectStippledEdges(4);
}

TEST_F(BoxPixels, AreNoneOfAnIdleBox)
{
    draw(box);
    EXPECT_TRUE(isUntouched());
    drag(box, {30, 20}, {110, 90});
    box.End();
    draw(box);
    EXPECT_TRUE(isUntouched());
}

TEST_F(BoxPixels, AreCutAtTheScenesEdges)
{
    useInk(box, 200);
    drag(box, {-1000, -500}, {100, 60});
    draw(box);
    EXPECT_TRUE(shows(0, 0, over(kShapeInk, 50, kBackground)));
    EXPECT_TRUE(shows(97, 57, over(kShapeInk, 50, kBackground)));
    EXPECT_TRUE(isUntouched(103, 63));
}

/// What the host has set for its own scene does not show in the shape.
TEST_F(BoxPixels, DoNotDependOnTheScenesLightsDepthAndCulling)
{
    glEnable(GL_LIGHTING);
    glEnable(GL_CULL_FACE);
    glCullFace(GL_FRONT_AND_BACK);
    glEnable(GL_DEPTH_TEST);
    glDepthFunc(GL_NEVER);
    glPolygonMode(GL_FRONT_AND_BACK, GL_POINT);
    useInk(box, 200);
    drag(box, {30, 20}, {110, 90});
    draw(box);
    EXPECT_TRUE(shows(70, 55, over(kShapeInk, 50, kBackground)));
}

} // namespace
} // namespace vq::test
