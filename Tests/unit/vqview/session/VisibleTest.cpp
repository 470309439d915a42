// SPDX-License-Identifier: MIT
// What is selected of what can be seen, against a depth buffer in double precision of the test's own.
#include "Geometry.h"
#include "Stage.h"

#include <algorithm>

namespace vqview::test::visibleTests {
namespace {

struct Look
{
    const char* name;
    bool isOrthographic;
    CPoint turn, move;
    double wheel;
};

constexpr Look kLooks[]{
    {"Fitted", false, {0, 0}, {0, 0}, 0},
    {"FittedOrthographic", true, {0, 0}, {0, 0}, 0},
    {"Turned", false, {97, 31}, {0, 0}, 0},
    {"TurnedOrthographic", true, {-143, -57}, {13, 7}, 0},
    {"Near", false, {41, 0}, {0, 0}, 4},
    {"NearOrthographic", true, {0, 67}, {0, 0}, 4},
    {"FarAndAside", false, {203, 11}, {61, 23}, -3},
};

class VisibleFrom : public SessionTest, public testing::WithParamInterface<Look>
{
public:
    VisibleFrom() : m_scan(scanOfFile(kBunny))
    {
        const Look& look = GetParam();
        session.show(bunny());
        session.setOrthographic(look.isOrthographic);
        drag(Button::Right, {{320, 240}, CPoint(320 + look.turn.x, 240 + look.turn.y)});
        drag(Button::Middle, {{320, 240}, CPoint(320 + look.move.x, 240 + look.move.y)});
        if (look.wheel != 0)
            session.wheel(look.wheel, {331, 247});
    }

    /// What is clearly visible is selected of the area, what is clearly hidden is not. The rest, which a move of the
    /// pixels' centres by a 64th decides, is small.
    void expectVisibleOf(const Area& area)
    {
        constexpr double kStep = 1.0 / 65536;
        const std::vector<Point3>& points = m_scan.points;
        std::vector<DepthOfSurface> surfaces;
        for (const auto& [dx, dy] :
             {std::pair(0, 0), std::pair(1, 1), std::pair(1, -1), std::pair(-1, 1), std::pair(-1, -1)})
            surfaces.emplace_back(session.variables(), m_scan, dx / 64.0, dy / 64.0);

        std::vector<std::uint32_t> visible, hidden;
        const Found found = pointsIn(area, session.variables(), points);
        ASSERT_EQ(found.atBorder, 0u);
        for (const std::uint32_t index : found.points) {
            const Place place = placeOf(session.variables(), points[index]);
            const auto around = [&](const DepthOfSurface& surface) { return surface.farthestAround(place.x, place.y); };
            if (std::ranges::all_of(surfaces,
                                    [&](auto& surface) { return place.depth <= around(surface) + kStep / 2; }))
                visible.push_back(index);
            if (std::ranges::all_of(surfaces, [&](auto& surface) { return place.depth > around(surface) + 2 * kStep; }))
                hidden.push_back(index);
        }
        EXPECT_TRUE(std::ranges::includes(session.selected(), visible));
        EXPECT_TRUE(std::ranges::includes(found.points, session.selected()));
        EXPECT_THAT(taken(session.selected(), taken(found.points, hidden)), testing::IsEmpty());
        EXPECT_THAT(taken(visible, session.selected()), testing::IsEmpty());
        const std::size_t rest = found.points.size() - visible.size() - hidden.size();
        EXPECT_LE(rest * 100, found.points.size() * 2) << rest << " of " << found.points.size();
        EXPECT_GT(visible.size(), found.points.size() / 20);
        EXPECT_GT(hidden.size(), found.points.size() / 20);
        RecordProperty("visible", static_cast<int>(visible.size()));
        RecordProperty("hidden", static_cast<int>(hidden.size()));
        RecordProperty("rest", static_cast<int>(rest));
    }

private:
    ScanOfFile m_scan;
};

INSTANTIATE_TEST_SUITE_P(Views, VisibleFrom, testing::ValuesIn(kLooks),
                         [](const auto& look) { return std::string(look.param.name); });

TEST_P(VisibleFrom, ABoxSelectsWhatIsSeen)
{
    selectByBox({181, 83}, {473, 407});
    expectVisibleOf(boxArea({181, 83}, {473, 407}));
}

TEST_P(VisibleFrom, AfterADrawnFrameAPolygonSelectsTheSame)
{
    const std::vector<CPoint> corners{{211, 91}, {461, 143}, {407, 397}, {217, 361}};
    session.shown().edges = true;
    session.draw();
    session.setTool(Tool::Polygon);
    for (const CPoint& corner : corners)
        click(corner);
    session.key(Key::Enter, {});
    expectVisibleOf(polygonArea(corners));
}

class Visible : public SessionTest
{
public:
    Visible() { session.show(bunny()); }
    std::size_t countOfBox()
    {
        selectByBox({200, 120}, {440, 360});
        return session.selectedCount();
    }
};

TEST_F(Visible, IsLessThanAll)
{
    const std::size_t seen = countOfBox();
    session.setSelectsThrough(true);
    EXPECT_TRUE(session.selectsThrough());
    EXPECT_LT(seen, countOfBox());
}

TEST_F(Visible, IsEverythingWhenFacesAreNotDrawn)
{
    session.setSelectsThrough(true);
    const std::size_t all = countOfBox();
    session.setSelectsThrough(false);
    session.shown().faces = false;
    EXPECT_EQ(countOfBox(), all);
}

TEST_F(Visible, FollowsTheViewThatIsTurnedBetweenTwoShapes)
{
    countOfBox();
    const std::vector<std::uint32_t> front = session.selected();
    session.key(Key('9'), {});
    countOfBox();
    std::vector<std::uint32_t> both;
    std::ranges::set_intersection(front, session.selected(), std::back_inserter(both));
    EXPECT_LT(both.size() * 5, front.size()) << "front and back have but a rim of some pixels in common";
}

TEST_F(Visible, StaysTheSameWithLabelsReportAndEdgesOverIt)
{
    const std::size_t plain = countOfBox();
    session.shown() = {.edges = true, .vertices = true, .labels = true, .report = true, .keys = true};
    session.draw();
    EXPECT_EQ(countOfBox(), plain);
}

} // namespace
} // namespace vqview::test::visibleTests
