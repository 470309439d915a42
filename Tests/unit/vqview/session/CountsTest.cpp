// SPDX-License-Identifier: MIT
// Which points of a real scan each tool selects, hidden ones included, against arithmetic of the test's own.
#include "Geometry.h"
#include "Stage.h"

#include <cmath>
#include <numbers>

namespace vqview::test::countsTests {
namespace {

const ScanOfFile& scan()
{
    static const ScanOfFile read = scanOfFile(kBunny);
    return read;
}

/// How the rabbit is looked at.
struct Look
{
    const char* name;
    bool isOrthographic;
    void (*go)(SessionTest& test, Session& session);
};

constexpr CPoint kMiddle{320, 240};

const Look kLooks[]{
    {"Fitted", false, [](SessionTest&, Session&) {}},
    {"FittedOrthographic", true, [](SessionTest&, Session&) {}},
    {"Turned", false,
     [](SessionTest& test, Session&) {
         test.drag(Button::Right, {{300, 200}, {340, 230}, {407, 251}});
     }},
    {"TurnedOrthographic", true,
     [](SessionTest& test, Session&) {
         test.drag(Button::Right, {{300, 200}, {211, 190}, {180, 157}});
     }},
    {"Moved", false,
     [](SessionTest& test, Session&) {
         test.drag(Button::Middle, {{300, 200}, {347, 171}});
     }},
    {"MovedByShift", true,
     [](SessionTest& test, Session& session) {
         session.setTool(Tool::Look);
         test.drag(Button::Left, {{300, 200}, {263, 219}}, kShift);
     }},
    {"Near", false,
     [](SessionTest&, Session& session) {
         session.wheel(5, {351, 203});
     }},
    {"NearOrthographic", true,
     [](SessionTest&, Session& session) {
         session.wheel(3.5, {301, 263});
     }},
    {"Within", false,
     [](SessionTest&, Session& session) {
         session.wheel(14, {322, 255});
     }},
    {"FromAbove", false, [](SessionTest&, Session& session) { session.lookAlong(Side::Top); }},
    {"All", true,
     [](SessionTest& test, Session& session) {
         session.lookAlong(Side::Left);
         test.drag(Button::Right, {{10, 10}, {61, 47}});
         session.wheel(-2, {100, 400});
         test.drag(Button::Middle, {{320, 240}, {372, 214}});
     }},
};

class CountsFrom : public SessionTest, public testing::WithParamInterface<Look>
{
public:
    CountsFrom()
    {
        session.show(bunny());
        session.setOrthographic(GetParam().isOrthographic);
        GetParam().go(*this, session);
        session.setSelectsThrough(true);
    }

    void expectSelected(const Area& area)
    {
        const Found found = pointsIn(area, session.variables(), scan().points);
        ASSERT_EQ(found.atBorder, 0u) << "a place whose border no point hits must be chosen";
        ASSERT_GT(found.points.size(), 50u);
        EXPECT_EQ(session.selectedCount(), found.points.size());
        EXPECT_EQ(session.selected(), found.points);
    }
};

INSTANTIATE_TEST_SUITE_P(Views, CountsFrom, testing::ValuesIn(kLooks),
                         [](const auto& look) { return std::string(look.param.name); });

TEST(Counts, AreOfTheScanAsTheTestReadsIt)
{
    EXPECT_EQ(bunny()->positions, scan().points);
    EXPECT_EQ(bunny()->triangles.size(), scan().triangles.size());
}

TEST_P(CountsFrom, ABoxSelectsWhatLiesBetweenItsCorners)
{
    session.setTool(Tool::Box);
    drag(Button::Left, {{437, 321}, {10, 10}, {252, 163}});
    expectSelected(boxArea({437, 321}, {252, 163}));
}

TEST_P(CountsFrom, ACircleSelectsWhatLiesWithinItsRadius)
{
    session.setTool(Tool::Circle);
    drag(Button::Left, {{331, 257}, {340, 270}, {407, 301}});
    expectSelected(circleArea({331, 257}, {407, 301}));
}

TEST_P(CountsFrom, ABandSelectsTwelvePixelsToEachSideOfItsLine)
{
    session.setTool(Tool::Band);
    drag(Button::Left, {{203, 317}, {300, 300}, {419, 187}});
    expectSelected(bandArea({203, 317}, {419, 187}, 12));
}

TEST_P(CountsFrom, ALassoSelectsByTheAlternateRuleWhatItGoesRound)
{
    // A star drawn in one go, whose middle lies outside.
    std::vector<CPoint> path;
    for (int corner = 0; corner < 5; ++corner) {
        const double angle = 0.1 + 2 * std::numbers::pi * 2 * corner / 5;
        path.emplace_back(static_cast<int>(std::lround(kMiddle.x + 171 * std::cos(angle))),
                          static_cast<int>(std::lround(kMiddle.y + 163 * std::sin(angle))));
    }
    session.setTool(Tool::Lasso);
    drag(Button::Left, path);
    expectSelected(polygonArea(path));
}

TEST_P(CountsFrom, APolygonSelectsWithinItsCorners)
{
    const std::vector<CPoint> corners{{223, 131}, {451, 173}, {337, 237}, {409, 383}, {241, 341}};
    session.setTool(Tool::Polygon);
    for (const CPoint& corner : corners)
        click(corner);
    EXPECT_TRUE(session.key(Key::Enter, {}));
    expectSelected(polygonArea(corners));
}

TEST_P(CountsFrom, ALassoOfManyCornersSelectsWithinThem)
{
    std::vector<CPoint> path;
    for (int step = 0; step < 400; ++step) {
        const double angle = 2 * std::numbers::pi * step / 400;
        const double reach = 150 + 30 * std::sin(23 * angle);
        const CPoint corner(static_cast<int>(std::lround(kMiddle.x + reach * std::cos(angle))),
                            static_cast<int>(std::lround(kMiddle.y + reach * std::sin(angle))));
        if (path.empty() || path.back() != corner)
            path.push_back(corner);
    }
    session.setTool(Tool::Lasso);
    drag(Button::Left, path);
    expectSelected(polygonArea(path));
}

/// What a second shape makes of the first one's selection.
struct Mode
{
    const char* name;
    Modifiers held;
    bool isExchanged;
    std::vector<std::uint32_t> (*combine)(const std::vector<std::uint32_t>& before,
                                          const std::vector<std::uint32_t>& shape);
};

std::vector<std::uint32_t> replaced(const std::vector<std::uint32_t>&, const std::vector<std::uint32_t>& shape)
{
    return shape;
}

const Mode kModes[]{
    {"PlainReplaces", kNone, false, replaced},         {"ControlAdds", kControl, false, added},
    {"ShiftSubtracts", kShift, false, taken},          {"BothToggle", kBoth, false, toggled},
    {"PlainReplacesExchanged", kNone, true, replaced}, {"ControlSubtractsExchanged", kControl, true, taken},
    {"ShiftAddsExchanged", kShift, true, added},       {"BothToggleExchanged", kBoth, true, toggled},
};

class HeldKeys : public SessionTest, public testing::WithParamInterface<Mode>
{
public:
    HeldKeys()
    {
        session.show(bunny());
        session.setSelectsThrough(true);
        session.setExchangesKeys(GetParam().isExchanged);
        selectByBox({237, 151}, {403, 307});
        m_before = inArea(boxArea({237, 151}, {403, 307}));
    }

    std::vector<std::uint32_t> inArea(const Area& area)
    {
        Found found = pointsIn(area, session.variables(), scan().points);
        EXPECT_EQ(found.atBorder, 0u);
        return found.points;
    }
    void expectCombinedWith(const Area& area)
    {
        EXPECT_EQ(session.exchangesKeys(), GetParam().isExchanged);
        EXPECT_EQ(session.selected(), GetParam().combine(m_before, inArea(area)));
    }

private:
    std::vector<std::uint32_t> m_before;
};

INSTANTIATE_TEST_SUITE_P(Modes, HeldKeys, testing::ValuesIn(kModes),
                         [](const auto& mode) { return std::string(mode.param.name); });

TEST_P(HeldKeys, DecideWhatACircleMakesOfTheSelection)
{
    session.setTool(Tool::Circle);
    drag(Button::Left, {{377, 291}, {431, 333}}, GetParam().held);
    expectCombinedWith(circleArea({377, 291}, {431, 333}));
}

TEST_P(HeldKeys, DecideWhatAPolygonMakesOfIt)
{
    const std::vector<CPoint> corners{{301, 121}, {457, 211}, {317, 359}};
    session.setTool(Tool::Polygon);
    for (const CPoint& corner : corners)
        click(corner, GetParam().held);
    session.key(Key::Enter, GetParam().held);
    expectCombinedWith(polygonArea(corners));
}

TEST_P(HeldKeys, CountAtTheEndOfTheShape)
{
    session.setTool(Tool::Box);
    session.press(Button::Left, {353, 211}, kNone);
    session.move({400, 300}, kNone);
    session.release(Button::Left, {447, 389}, GetParam().held);
    expectCombinedWith(boxArea({353, 211}, {447, 389}));
}

TEST_P(HeldKeys, UndoAndRedoGoThroughAllOfIt)
{
    const std::vector<std::uint32_t> first = session.selected();
    session.setTool(Tool::Circle);
    drag(Button::Left, {{377, 291}, {431, 333}}, GetParam().held);
    const std::vector<std::uint32_t> second = session.selected();
    ASSERT_NE(first, second);

    session.undo();
    EXPECT_EQ(session.selected(), first);
    session.undo();
    EXPECT_EQ(session.selectedCount(), 0u);
    EXPECT_FALSE(session.canUndo());
    session.redo();
    EXPECT_EQ(session.selected(), first);
    session.redo();
    EXPECT_EQ(session.selected(), second);
    EXPECT_FALSE(session.canRedo());
}

} // namespace
} // namespace vqview::test::countsTests
