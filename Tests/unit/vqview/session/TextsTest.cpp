// SPDX-License-Identifier: MIT
// Status line, notices and measuring.
#include "Geometry.h"
#include "Stage.h"

#include "vqview/text/Text.h"

#include <chrono>

namespace vqview::test {
namespace {

using namespace std::chrono_literals;
using testing::HasSubstr;
using testing::Not;

class Texts : public SessionTest
{
public:
    Texts() { session.show(bunny()); }
};

TEST_F(Texts, TheStatusLineNamesToolAndCount)
{
    EXPECT_THAT(session.statusLine(), testing::StartsWith("Look"));
    EXPECT_THAT(session.statusLine(), HasSubstr("0 of " + counted(bunny()->positions.size()) + " points selected"));
    EXPECT_THAT(session.statusLine(), HasSubstr("visible"));
    session.selectAll();
    session.setSelectsThrough(true);
    session.setTool(Tool::Circle);
    const std::string all = counted(bunny()->positions.size());
    EXPECT_THAT(session.statusLine(), testing::StartsWith("Circle"));
    EXPECT_THAT(session.statusLine(), HasSubstr(all + " of " + all));
    EXPECT_THAT(session.statusLine(), HasSubstr("through"));
}

TEST_F(Texts, TheStatusLineSaysWhatAHeldKeyDoes)
{
    session.setTool(Tool::Box);
    EXPECT_THAT(session.statusLine(), HasSubstr("selects anew"));
    session.hold(kControl);
    EXPECT_THAT(session.statusLine(), HasSubstr("adds"));
    session.hold(kShift);
    EXPECT_THAT(session.statusLine(), HasSubstr("takes"));
    session.hold(kBoth);
    EXPECT_THAT(session.statusLine(), HasSubstr("turns"));
    session.setExchangesKeys(true);
    session.hold(kControl);
    EXPECT_THAT(session.statusLine(), HasSubstr("takes"));
    session.hold(kShift);
    EXPECT_THAT(session.statusLine(), HasSubstr("adds"));
    session.setTool(Tool::Look);
    EXPECT_THAT(session.statusLine(), Not(HasSubstr("adds")));
}

TEST_F(Texts, TheStatusLineCountsThePolygonsCorners)
{
    session.setTool(Tool::Polygon);
    EXPECT_THAT(session.statusLine(), Not(HasSubstr("corner")));
    click({100, 100});
    EXPECT_THAT(session.statusLine(), HasSubstr("1 corner "));
    click({200, 100});
    EXPECT_THAT(session.statusLine(), HasSubstr("2 corners"));
    EXPECT_THAT(session.statusLine(), Not(HasSubstr("Enter closes"))) << "there is nothing to close yet";
    click({200, 200});
    EXPECT_THAT(session.statusLine(), HasSubstr("3 corners, Enter closes"));
    session.key(Key::Backspace, {});
    session.key(Key::Backspace, {});
    EXPECT_THAT(session.statusLine(), HasSubstr("1 corner "));
    session.key(Key::Escape, {});
    EXPECT_THAT(session.statusLine(), Not(HasSubstr("corner")));
}

TEST_F(Texts, WithoutAScanTheStatusLineSaysSo)
{
    session.show(nullptr);
    EXPECT_THAT(session.statusLine(), HasSubstr("no scan"));
}

TEST_F(Texts, ANoticeGoesSomeSecondsAfterItWasFirstShown)
{
    const auto now = Session::Clock::now();
    session.say("something");
    EXPECT_TRUE(session.wantsFrame());
    session.poll(now + 1h); // however long nothing was shown
    EXPECT_EQ(session.notice(), "something");
    session.draw();
    EXPECT_FALSE(session.wantsFrame());
    session.poll(now + 1h + 2s);
    EXPECT_EQ(session.notice(), "something");
    session.poll(now + 1h + 20s);
    EXPECT_EQ(session.notice(), "");
    EXPECT_TRUE(session.wantsFrame()) << "it has to go from the screen";
}

TEST_F(Texts, ANewNoticeHasItsOwnTime)
{
    const auto now = Session::Clock::now();
    session.say("first");
    session.poll(now);
    session.say("second");
    session.poll(now + 5s);
    session.poll(now + 9s);
    EXPECT_EQ(session.notice(), "second");
}

TEST_F(Texts, AFrameIsWantedAfterWhateverChangesIt)
{
    const auto expectWanted = [&](const char* what, const std::function<void()>& change) {
        session.draw();
        ASSERT_FALSE(session.wantsFrame()) << what;
        change();
        EXPECT_TRUE(session.wantsFrame()) << what;
    };
    expectWanted("hold", [&] { session.hold(kControl); });
    expectWanted("turn", [&] { drag(Button::Right, {{10, 10}, {20, 20}}); });
    expectWanted("wheel", [&] { session.wheel(1, {300, 200}); });
    expectWanted("tool", [&] { session.setTool(Tool::Box); });
    expectWanted("box", [&] { drag(Button::Left, {{10, 10}, {420, 420}}); });
    expectWanted("undo", [&] { session.undo(); });
    expectWanted("all", [&] { session.selectAll(); });
    expectWanted("shown", [&] { session.shown().edges = true; });
    expectWanted("value", [&] { session.setValue(VertexValue::Distance); });
    expectWanted("size", [&] { session.setSize(320, 200, 1); });
    expectWanted("preferences", [&] { session.preferencesChanged(); });
    expectWanted("through", [&] { session.setSelectsThrough(true); });
    expectWanted("fit", [&] { session.fit(); });
}

/// Measuring picks what is seen.
class Measuring : public Texts
{
public:
    Measuring() { session.setTool(Tool::Measure); }
    Place placeOfPicked(std::size_t which) const
    {
        return placeOf(session.variables(), bunny()->positions[session.picked()[which]]);
    }
};

TEST_F(Measuring, AClickPicksThePointThatIsSeenNearest)
{
    click({320, 240});
    ASSERT_EQ(session.picked().size(), 1u);
    const Place picked = placeOfPicked(0);
    EXPECT_LT(std::hypot(picked.x - 320, picked.y - 240), 10);
    // What is nearer on the screen is hidden: it lies behind.
    for (const Point3& point : bunny()->positions) {
        const Place other = placeOf(session.variables(), point);
        if (std::hypot(other.x - 320, other.y - 240) < std::hypot(picked.x - 320, picked.y - 240)) {
            EXPECT_GT(other.depth, picked.depth);
        }
    }
}

TEST_F(Measuring, PicksNothingHiddenEvenWhenHiddenPointsAreSelected)
{
    click({320, 240});
    session.setSelectsThrough(true);
    click({320, 240});
    ASSERT_EQ(session.picked().size(), 2u);
    EXPECT_EQ(session.picked()[0], session.picked()[1]);
    EXPECT_TRUE(session.selectsThrough());
}

TEST_F(Measuring, ThereIsANoticeWhereNoPointIs)
{
    click({5, 5});
    EXPECT_TRUE(session.picked().empty());
    EXPECT_NE(session.notice(), "");
}

TEST_F(Measuring, BackspaceTakesBackTheLastPick)
{
    click({320, 240});
    click({350, 280});
    const std::uint32_t first = session.picked().front();
    EXPECT_TRUE(session.key(Key::Backspace, {}));
    EXPECT_EQ(session.picked(), std::vector<std::uint32_t>{first});
    EXPECT_TRUE(session.key(Key::Backspace, {}));
    EXPECT_TRUE(session.picked().empty());
    EXPECT_FALSE(session.key(Key::Backspace, {}));
}

TEST_F(Measuring, EscapeDropsThePicksFirstAndThenTheSelection)
{
    session.selectAll();
    click({320, 240});
    session.key(Key::Escape, {});
    EXPECT_TRUE(session.picked().empty());
    EXPECT_EQ(session.selectedCount(), bunny()->positions.size());
    session.key(Key::Escape, {});
    EXPECT_EQ(session.selectedCount(), 0u);
}

TEST_F(Measuring, AnotherScanHasNoPicks)
{
    click({320, 240});
    session.show(bunny());
    EXPECT_TRUE(session.picked().empty());
    session.draw();
}

} // namespace
} // namespace vqview::test
