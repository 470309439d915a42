// SPDX-License-Identifier: MIT
// Scripts: every command does what mouse and keys do, every bad line is named by its number.
#include "Geometry.h"
#include "Stage.h"

#include "vqview/session/Script.h"
#include "vqview/text/Text.h"

namespace vqview::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Script : public SessionTest
{
public:
    Script() { session.show(bunny()); }

    std::vector<std::string> play(const std::string& text)
    {
        ScriptStage stage{session,
                          [this](int width, int height, float scale) {
                              m_sizes.push_back({double(width), double(height), scale});
                              return m_resizeFault;
                          },
                          [this](const std::string& name, const std::string& caption, bool isReport) {
                              m_kept.push_back((isReport ? "report " : "picture ") + name + "|" + caption);
                              return name != "unwritable";
                          },
                          [this](const std::string& line) { m_printed.push_back(line); }};
        return runScript(text, stage);
    }
    std::vector<std::uint32_t> inside(const Area& area)
    {
        return pointsIn(area, session.variables(), bunny()->positions).points;
    }

    vq::test::TemporaryFolder m_folder{L"scripts"};
    std::vector<std::array<double, 3>> m_sizes;
    std::vector<std::string> m_kept, m_printed;
    std::string m_resizeFault;
};

TEST_F(Script, OfCommentsAndEmptyLinesDoesNothing)
{
    EXPECT_THAT(play(""), IsEmpty());
    EXPECT_THAT(play("# only this\n\n   \t\r\n  # and that"), IsEmpty());
}

TEST_F(Script, DragsWhatTheMouseDrags)
{
    EXPECT_THAT(play("through on\r\ntool box\ndrag left 252 163 300 200 437 321 # a comment\n"), IsEmpty());
    EXPECT_EQ(session.selected(), inside(boxArea({252, 163}, {437, 321})));
    EXPECT_THAT(play("tool box\npress left 237 151\nmove 300 300\nrelease left 403 307"), IsEmpty());
    EXPECT_EQ(session.selected(), inside(boxArea({237, 151}, {403, 307})));
}

TEST_F(Script, TakesPlacesAsPartsOfTheFrame)
{
    play("through on\ntool box\ndrag left 40% 30% 62.5% 300");
    EXPECT_EQ(session.selected(), inside(boxArea({256, 144}, {400, 300})));
}

TEST_F(Script, HoldsKeysThatStandAtTheEndOfALine)
{
    play("through on\ntool box\ndrag left 237 151 403 307\ntool circle\ndrag left 377 291 431 333 ctrl");
    const auto box = inside(boxArea({237, 151}, {403, 307})), circle = inside(circleArea({377, 291}, {431, 333}));
    EXPECT_EQ(session.selected(), added(box, circle));
    play("drag left 377 291 431 333 shift");
    EXPECT_EQ(session.selected(), taken(box, circle));
    play("drag left 377 291 431 333 shift ctrl");
    EXPECT_EQ(session.selected(), toggled(taken(box, circle), circle));
    play("exchange on\ndrag left 377 291 431 333 ctrl");
    EXPECT_EQ(session.selected(), taken(box, circle));
    EXPECT_THAT(play("hold ctrl"), IsEmpty());
    EXPECT_THAT(session.statusLine(), HasSubstr("takes"));
    EXPECT_THAT(play("exchange off\nhold ctrl"), IsEmpty());
    EXPECT_THAT(session.statusLine(), HasSubstr("adds"));
    EXPECT_THAT(play("hold"), IsEmpty());
    EXPECT_THAT(session.statusLine(), HasSubstr("anew"));
}

TEST_F(Script, GoesRoundAnEllipse)
{
    play("through on\ntool lasso\nellipse left 50% 50% 100 60 4");
    EXPECT_EQ(session.selected(), inside(areaOf({{420, 240}, {320, 300}, {220, 240}, {320, 180}})));
}

TEST_F(Script, ClicksAndTypes)
{
    EXPECT_THAT(play("through on\nkey p\nclick 223 131\nclick 451 173\nclick 10 10\nkey backspace\n"
                     "click 389 383\nkey enter"),
                IsEmpty());
    EXPECT_EQ(session.selected(), inside(areaOf({{223, 131}, {451, 173}, {389, 383}})));
    EXPECT_THAT(play("key a ctrl\ncount\nkey z ctrl\ncount\nkey escape\ncount"), IsEmpty());
    EXPECT_EQ(m_printed.front(), "selected " + std::to_string(bunny()->positions.size()));
    EXPECT_EQ(m_printed.back(), "selected 0");
    EXPECT_THAT(play("key 5"), IsEmpty());
    EXPECT_TRUE(session.isOrthographic());
}

TEST_F(Script, TurnsTheWheel)
{
    const double before = session.variables().m_dModelView[14];
    EXPECT_THAT(play("wheel 2 50% 50%"), IsEmpty());
    EXPECT_GT(session.variables().m_dModelView[14], before);
    EXPECT_THAT(play("wheel -2.5 50% 50%"), IsEmpty());
    EXPECT_LT(session.variables().m_dModelView[14], before);
}

TEST_F(Script, ChoosesEveryToolAndEverythingShown)
{
    for (const auto& [name, tool] :
         {std::pair("look", Tool::Look), std::pair("box", Tool::Box), std::pair("circle", Tool::Circle),
          std::pair("band", Tool::Band), std::pair("lasso", Tool::Lasso), std::pair("polygon", Tool::Polygon),
          std::pair("measure", Tool::Measure)}) {
        EXPECT_THAT(play(std::string("tool ") + name), IsEmpty());
        EXPECT_EQ(session.tool(), tool);
    }
    for (const auto& [name, what] :
         {std::pair("faces", &Shown::faces), std::pair("edges", &Shown::edges), std::pair("vertices", &Shown::vertices),
          std::pair("labels", &Shown::labels), std::pair("report", &Shown::report), std::pair("keys", &Shown::keys)}) {
        EXPECT_THAT(play(std::string("show ") + name), IsEmpty());
        EXPECT_TRUE(session.shown().*what);
        EXPECT_THAT(play(std::string("hide ") + name), IsEmpty());
        EXPECT_FALSE(session.shown().*what);
    }
}

TEST_F(Script, ChangesPreferences)
{
    EXPECT_THAT(play("colour DPC_BACKGROUND 0.25 0.5 1\nlength DPS_PICKEDVERTEX 7.5"), IsEmpty());
    EXPECT_EQ(CVQDrawProperty::GetColor(DPC_BACKGROUND)[0], 0.25F);
    EXPECT_EQ(CVQDrawProperty::GetColor(DPC_BACKGROUND)[2], 1);
    EXPECT_EQ(CVQDrawProperty::GetSize(DPS_PICKEDVERTEX), 7.5F);
    EXPECT_THAT(play("colour DPC_BACKGROUND 0 0 0 0.5"), IsEmpty());
    EXPECT_EQ(CVQDrawProperty::GetColor(DPC_BACKGROUND)[3], 0.5F);
}

TEST_F(Script, SizesTheFrame)
{
    EXPECT_THAT(play("size 800 600\nsize 1600 1000 1.5"), IsEmpty());
    EXPECT_THAT(m_sizes, ElementsAre(std::array{800.0, 600.0, 1.0}, std::array{1600.0, 1000.0, 1.5}));
    m_resizeFault = "no memory";
    EXPECT_THAT(play("size 10 10\nkey h"), ElementsAre("line 1: no memory"));
    EXPECT_FALSE(session.shown().keys) << "nothing can be drawn any more";
}

TEST_F(Script, KeepsPicturesUnderTheRestOfTheLine)
{
    EXPECT_THAT(play("picture a  A caption, held with ctrl  # comment\nreport b\npicture c shift ctrl"), IsEmpty());
    EXPECT_THAT(m_kept, ElementsAre("picture a|A caption, held with ctrl", "report b|", "picture c|shift ctrl"));
    EXPECT_THAT(play("picture unwritable x"), ElementsAre(HasSubstr("line 1: the picture cannot be written")));
}

TEST_F(Script, GoesOnAfterAnExpectationThatFails)
{
    EXPECT_THAT(play("expect 0\nexpect 1\nkey a ctrl\nexpect 1.5\ncount"),
                ElementsAre("line 2: selected are 0", HasSubstr("line 4: selected are ")));
    EXPECT_EQ(m_printed.size(), 1u);
}

TEST_F(Script, OpensAndSavesAndWaits)
{
    vq::test::writeBytes(m_folder / L"four points.obj", "v 0 0 0\nv 1 0 0\nv 0 1 0\nv 1 1 0\nf 1 2 3\nf 2 4 3\n");
    const std::string folder = utf8Of(nativePath(m_folder));
    EXPECT_THAT(play("open " + folder + "/four points.obj\nkey a ctrl\nexpect 4\nsave " + folder +
                     "/a document.vqd\nkey escape\nopen " + folder + "/a document.vqd\nexpect 4\nwait"),
                IsEmpty());
}

TEST_F(Script, SaysWhenWhatItOpensCannotBeShown)
{
    const std::string folder = utf8Of(nativePath(m_folder));
    EXPECT_THAT(play("count\nopen " + folder + "/nowhere.obj\ncount"), ElementsAre(HasSubstr("nowhere.obj")));
    EXPECT_THAT(play("open " + folder + "/nowhere.vqd\ncount"), ElementsAre(HasSubstr("nowhere.vqd")));
    EXPECT_THAT(play("save " + folder + "/nowhere/a.vqd\ncount"), ElementsAre(HasSubstr("a.vqd")));
    EXPECT_THAT(play("open " + folder), testing::SizeIs(1));
    EXPECT_EQ(m_printed.size(), 1u);
    EXPECT_EQ(session.model(), bunny());
}

class BadLine : public Script, public testing::WithParamInterface<const char*>
{
};
INSTANTIATE_TEST_SUITE_P(
    Lines, BadLine,
    testing::Values("nonsense", "ctrl", "Tool box", "tool", "tool hammer", "tool box box", "press left 10",
                    "press left", "press up 1 2", "press left x 2", "press left 1 2 3", "press left 1,5 2",
                    "press left 1 2%%", "press left % 2", "press left nan 2", "press left inf 2", "press left 1e300 2",
                    "press left 900000000% 2", "move 1", "move 1 2 3", "release left", "release 1 2", "drag left",
                    "drag left 1 2 3", "drag 1 2", "ellipse left 1 2 3 4", "ellipse left 1 2 3 4 2",
                    "ellipse left 1 2 3 4 1e8", "ellipse left 1 2 3 4 nan", "click", "click 1", "click 1 2 3", "wheel",
                    "wheel 1", "wheel 1 2", "wheel fast 1 2", "key", "key delete", "key enterr", "key !",
                    "key \xC3\xBC", "key a b", "hold x", "show", "show everything", "hide", "show faces edges",
                    "through", "through maybe", "exchange", "exchange 1", "colour", "colour DPC_NOWHERE 0 0 0",
                    "colour DPC_BACKGROUND 0 0", "colour DPC_BACKGROUND 0 0 2", "colour DPC_BACKGROUND -1 0 0",
                    "colour DPC_BACKGROUND 0 0 0 0 0", "length", "length DPS_NOWHERE 1", "length DPS_VERTEX",
                    "length DPS_VERTEX wide", "length DPS_VERTEX -1", "length DPS_VERTEX -0.001",
                    "length DPS_VERTEX nan", "wait here", "count all", "size", "size 10", "size 0 10", "size 10 -5",
                    "size 99999 10", "size 10 10 0", "size 10 10 99", "size 10 10 1 1", "size 1e9 1e9", "open", "save",
                    "picture", "report"));

TEST_P(BadLine, IsNamedAndEndsTheScript)
{
    const std::vector<std::string> faults = play(std::string("count\n\n") + GetParam() + "\ncount");
    ASSERT_EQ(faults.size(), 1u);
    EXPECT_THAT(faults[0], testing::StartsWith("line 3: "));
    EXPECT_GT(faults[0].size(), 12u);
    EXPECT_EQ(m_printed.size(), 1u);
    EXPECT_THAT(m_sizes, IsEmpty());
    EXPECT_THAT(m_kept, IsEmpty());
    EXPECT_EQ(session.model(), bunny());
}

TEST_F(Script, WithABadExpectationNamesItsLine)
{
    EXPECT_THAT(play("expect\nexpect many\nexpect 0 0"), testing::SizeIs(3));
}

} // namespace
} // namespace vqview::test
