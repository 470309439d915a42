// SPDX-License-Identifier: MIT
// Each key does what the list of keys says.
#include "Stage.h"

#include "vqview/overlay/Notices.h"

#include <algorithm>
#include <map>

namespace vqview::test {
namespace {

class Keys : public SessionTest
{
public:
    Keys() : m_folder(L"keys") { session.show(bunny()); }

    void type(char key, Modifiers held = {}) { EXPECT_TRUE(session.key(Key(key), held)) << key; }

    /// The viewer's direction in the scene.
    std::array<double, 3> direction() const
    {
        const SVQGLVariables view = session.variables();
        return {view.m_dModelView[2], view.m_dModelView[6], view.m_dModelView[10]};
    }
    bool isSameView(const SVQGLVariables& other) const
    {
        const SVQGLVariables view = session.variables();
        return std::ranges::equal(view.m_dModelView, other.m_dModelView) &&
               std::ranges::equal(view.m_dProjection, other.m_dProjection);
    }
    void expectTool(char key, Tool tool)
    {
        session.setTool(tool == Tool::Look ? Tool::Box : Tool::Look);
        type(key);
        EXPECT_EQ(session.tool(), tool);
    }
    void expectTurnsOver(char key, bool Shown::*what)
    {
        const bool before = session.shown().*what;
        type(key);
        EXPECT_NE(session.shown().*what, before) << key;
        type(key);
        EXPECT_EQ(session.shown().*what, before) << key;
    }

    void turn()
    {
        const auto before = direction();
        drag(Button::Left, {{300, 200}, {340, 220}});
        EXPECT_NE(direction(), before);
    }
    void turnWithEveryTool()
    {
        for (int tool = 0; tool < static_cast<int>(Tool::End); ++tool) {
            session.setTool(static_cast<Tool>(tool));
            const auto before = direction();
            drag(Button::Right, {{300, 200}, {340, 220}});
            EXPECT_NE(direction(), before) << tool;
        }
    }
    void moveView()
    {
        for (const auto& [button, held] : {std::pair(Button::Middle, kNone), std::pair(Button::Left, kShift)}) {
            const auto before = direction();
            const SVQGLVariables view = session.variables();
            drag(button, {{300, 200}, {340, 220}}, held);
            EXPECT_EQ(direction(), before);
            EXPECT_FALSE(isSameView(view));
        }
    }
    void goNearer()
    {
        const double before = session.variables().m_dModelView[14];
        session.wheel(2, {320, 240});
        EXPECT_GT(session.variables().m_dModelView[14], before);
    }
    void fit()
    {
        const SVQGLVariables fitted = session.variables();
        for (const Key key : {Key('F'), Key::Enter}) {
            session.wheel(4, {300, 200});
            EXPECT_FALSE(isSameView(fitted));
            EXPECT_TRUE(session.key(key, {}));
            EXPECT_TRUE(isSameView(fitted));
        }
    }
    void lookFromSides()
    {
        using Direction = std::array<double, 3>;
        for (const auto& [key, towards] : {std::pair('1', Direction{0, 0, 1}), std::pair('3', Direction{1, 0, 0}),
                                           std::pair('7', Direction{0, 1, 0}), std::pair('9', Direction{0, -1, 0})}) {
            type(key);
            for (std::size_t axis = 0; axis < 3; ++axis)
                EXPECT_NEAR(direction()[axis], towards[axis], 1e-12) << key;
        }
    }
    void changeProjection()
    {
        type('5');
        EXPECT_TRUE(session.isOrthographic());
        EXPECT_EQ(session.variables().m_dProjection[15], 1);
        type('5');
        EXPECT_FALSE(session.isOrthographic());
    }
    void savePicture()
    {
        const std::filesystem::path before = std::filesystem::current_path();
        std::filesystem::current_path(nativePath(m_folder));
        EXPECT_TRUE(session.key(Key::F12, {}));
        EXPECT_TRUE(session.key(Key::F12, {}));
        std::filesystem::current_path(before);
        EXPECT_EQ(m_folder.names(), (std::vector<std::string>{"vqview-1.png", "vqview-2.png"}));
    }
    void nextValues()
    {
        expectTurnsOver('O', &Shown::report);
        for (const VertexValue next : {VertexValue::Distance, VertexValue::Curvature, VertexValue::Height}) {
            type('N');
            EXPECT_EQ(session.value(), next);
        }
    }
    void takeBackCorner()
    {
        session.setTool(Tool::Polygon);
        click({100, 100});
        click({200, 100});
        EXPECT_TRUE(session.key(Key::Backspace, {}));
        EXPECT_EQ(CVQDrawingAPI::DragPolygon()->GetCount(), 1u);
    }
    void closePolygon()
    {
        session.setTool(Tool::Polygon);
        for (const bool isKey : {true, false}) {
            session.selectNone();
            for (const CPoint corner : {CPoint(100, 50), CPoint(600, 60), CPoint(350, 470)})
                click(corner);
            if (isKey)
                EXPECT_TRUE(session.key(Key::Enter, {}));
            else
                drag(Button::Right, {{600, 400}});
            EXPECT_GT(session.selectedCount(), 0u) << isKey;
        }
    }
    void changeThrough()
    {
        type('X');
        EXPECT_TRUE(session.selectsThrough());
        type('X');
        EXPECT_FALSE(session.selectsThrough());
    }
    void addAndSubtract()
    {
        selectByBox({250, 150}, {330, 300});
        const std::size_t some = session.selectedCount();
        selectByBox({331, 150}, {400, 300}, kControl);
        EXPECT_GT(session.selectedCount(), some);
        selectByBox({331, 150}, {400, 300}, kShift);
        EXPECT_EQ(session.selectedCount(), some);
    }
    void undoAndRedo()
    {
        session.selectAll();
        type('Z', kControl);
        EXPECT_EQ(session.selectedCount(), 0u);
        type('Y', kControl);
        EXPECT_EQ(session.selectedCount(), bunny()->positions.size());
    }
    void selectAllAndTurnOver()
    {
        type('A', kControl);
        EXPECT_EQ(session.selectedCount(), bunny()->positions.size());
        type('I', kControl);
        EXPECT_EQ(session.selectedCount(), 0u);
        type('I', kControl);
        EXPECT_EQ(session.selectedCount(), bunny()->positions.size());
        EXPECT_EQ(session.tool(), Tool::Look) << "Ctrl+A is no lasso";
    }
    void drop()
    {
        session.selectAll();
        session.setTool(Tool::Lasso);
        session.press(Button::Left, {100, 100}, {});
        session.move({200, 200}, {});
        EXPECT_TRUE(session.key(Key::Escape, {}));
        EXPECT_FALSE(CVQDrawingAPI::DragPolygon()->CheckSelection());
        EXPECT_GT(session.selectedCount(), 0u);
        EXPECT_TRUE(session.key(Key::Escape, {}));
        EXPECT_EQ(session.selectedCount(), 0u);
    }

private:
    vq::test::TemporaryFolder m_folder;
};

using Check = void (*)(Keys&);

const std::map<std::string, Check> kChecks{
    {"Left drag", [](Keys& keys) { keys.turn(); }},
    {"Right drag", [](Keys& keys) { keys.turnWithEveryTool(); }},
    {"Middle or Shift+left", [](Keys& keys) { keys.moveView(); }},
    {"Wheel", [](Keys& keys) { keys.goNearer(); }},
    {"F, Enter", [](Keys& keys) { keys.fit(); }},
    {"1  3  7  9", [](Keys& keys) { keys.lookFromSides(); }},
    {"5", [](Keys& keys) { keys.changeProjection(); }},
    {"E  D  T",
     [](Keys& keys) {
         keys.expectTurnsOver('E', &Shown::edges);
         keys.expectTurnsOver('D', &Shown::vertices);
         keys.expectTurnsOver('T', &Shown::labels);
     }},
    {"O  N", [](Keys& keys) { keys.nextValues(); }},
    {"F12", [](Keys& keys) { keys.savePicture(); }},
    {"H", [](Keys& keys) { keys.expectTurnsOver('H', &Shown::keys); }},
    {"B  C  L",
     [](Keys& keys) {
         keys.expectTool('B', Tool::Box);
         keys.expectTool('C', Tool::Circle);
         keys.expectTool('L', Tool::Band);
     }},
    {"A  P",
     [](Keys& keys) {
         keys.expectTool('A', Tool::Lasso);
         keys.expectTool('P', Tool::Polygon);
     }},
    {"Enter, right click", [](Keys& keys) { keys.closePolygon(); }},
    {"Backspace", [](Keys& keys) { keys.takeBackCorner(); }},
    {"M  V",
     [](Keys& keys) {
         keys.expectTool('M', Tool::Measure);
         keys.expectTool('V', Tool::Look);
     }},
    {"X", [](Keys& keys) { keys.changeThrough(); }},
    {"Ctrl, Shift", [](Keys& keys) { keys.addAndSubtract(); }},
    {"Ctrl+Z, Ctrl+Y", [](Keys& keys) { keys.undoAndRedo(); }},
    {"Ctrl+A, Ctrl+I", [](Keys& keys) { keys.selectAllAndTurnOver(); }},
    {"Escape", [](Keys& keys) { keys.drop(); }},
};

class KeyList : public Keys, public testing::WithParamInterface<KeyRow>
{
};
INSTANTIATE_TEST_SUITE_P(Rows, KeyList, testing::ValuesIn(kKeyRows.begin(), kKeyRows.end()));

TEST_P(KeyList, SaysWhatAKeyDoes)
{
    const auto check = kChecks.find(GetParam().key);
    ASSERT_NE(check, kChecks.end()) << GetParam().key;
    check->second(*this);
}

TEST_F(Keys, EveryKeyThatMeansSomethingIsInTheList)
{
    std::string listed;
    for (const KeyRow& row : kKeyRows)
        listed += std::string(" ") + row.key + " ";
    for (char key = '0'; key <= 'Z'; ++key) {
        const bool isOne = key <= '9' || key >= 'A';
        const std::string alone = std::string(" ") + key + (key == 'F' ? "," : " ");
        const std::string held = std::string("Ctrl+") + key;
        EXPECT_TRUE(!isOne || !session.key(Key(key), {}) || listed.find(alone) != listed.npos) << key;
        EXPECT_TRUE(!isOne || key == '9' || !session.key(Key(key), kControl) || listed.find(held) != listed.npos)
            << key;
    }
}

TEST_F(Keys, WithoutAMeaningAreAnsweredSo)
{
    EXPECT_FALSE(session.key(Key('Q'), {}));
    EXPECT_FALSE(session.key(Key('0'), {}));
    EXPECT_FALSE(session.key(Key('Q'), kControl));
}

} // namespace
} // namespace vqview::test
