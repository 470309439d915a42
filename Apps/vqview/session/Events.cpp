// SPDX-License-Identifier: MIT
// What a session makes of mouse and keys.
#include "vqview/session/State.h"
#include "vqview/text/Text.h"

#include <array>

namespace vqview {

namespace {

/// Keys without a modifier.
struct KeyAction
{
    char key;
    void (*act)(Session& session);
};

template <bool Shown::*what>
void turnOver(Session& session)
{
    bool& isShown = session.shown().*what;
    isShown = !isShown;
}

template <Tool tool>
void take(Session& session)
{
    session.setTool(tool);
}

template <Side side>
void lookFrom(Session& session)
{
    session.lookAlong(side);
}

void nextValue(Session& session)
{
    const int next = static_cast<int>(session.value()) + 1;
    session.setValue(static_cast<VertexValue>(next % static_cast<int>(VertexValue::End)));
}

constexpr std::array<KeyAction, 19> kActions{{
    {'1', lookFrom<Side::Front>},
    {'3', lookFrom<Side::Right>},
    {'7', lookFrom<Side::Top>},
    {'5', [](Session& session) { session.setOrthographic(!session.isOrthographic()); }},
    {'A', take<Tool::Lasso>},
    {'B', take<Tool::Box>},
    {'C', take<Tool::Circle>},
    {'D', turnOver<&Shown::vertices>},
    {'E', turnOver<&Shown::edges>},
    {'F', [](Session& session) { session.fit(); }},
    {'H', turnOver<&Shown::keys>},
    {'L', take<Tool::Band>},
    {'M', take<Tool::Measure>},
    {'N', nextValue},
    {'O', turnOver<&Shown::report>},
    {'P', take<Tool::Polygon>},
    {'T', turnOver<&Shown::labels>},
    {'V', take<Tool::Look>},
    {'X', [](Session& session) { session.setSelectsThrough(!session.selectsThrough()); }},
}};

/// Keys with Ctrl.
constexpr std::array<KeyAction, 4> kControlActions{{
    {'A', [](Session& session) { session.selectAll(); }},
    {'I', [](Session& session) { session.invertSelection(); }},
    {'Y', [](Session& session) { session.redo(); }},
    {'Z', [](Session& session) { session.undo(); }},
}};

template <std::size_t N>
bool act(const std::array<KeyAction, N>& actions, Key key, Session& session)
{
    for (const KeyAction& action : actions)
        if (Key(action.key) == key) {
            action.act(session);
            return true;
        }
    return false;
}

/// A name in the current folder that no file has yet.
std::filesystem::path freePictureName()
{
    for (int number = 1;; ++number) {
        const std::filesystem::path path = "vqview-" + std::to_string(number) + ".png";
        std::error_code error;
        if (!std::filesystem::exists(path, error))
            return path;
    }
}

} // namespace

void Session::press(Button button, CPoint at, Modifiers held)
{
    State& state = *m_state;
    hold(held);
    state.mouse = at;
    state.changed();
    if (button == Button::Right && state.selecting.key(Key::Enter, held)) {
        selectionEnded();
        return;
    }
    if (button == Button::Left && tool() == Tool::Measure) {
        if (!state.pick(at))
            say("There is no point");
        return;
    }
    if (button == Button::Left && state.model && state.selecting.press(at, held)) {
        selectionEnded(); // the click that closes a polygon
        return;
    }
    state.dragging = button;
    state.dragPans = button == Button::Middle || (button == Button::Left && held.shift);
}

void Session::move(CPoint to, Modifiers held)
{
    State& state = *m_state;
    hold(held);
    const int dx = to.x - state.mouse.x, dy = to.y - state.mouse.y;
    state.mouse = to;
    if (state.selecting.move(to))
        state.changed();
    if (!state.dragging || (dx == 0 && dy == 0))
        return;
    if (state.dragPans)
        state.camera.pan(dx, dy);
    else
        state.camera.turn(dx, dy);
    state.lookedElsewhere();
}

void Session::release(Button button, CPoint at, Modifiers held)
{
    State& state = *m_state;
    move(at, held);
    if (button == Button::Left && state.selecting.release(at, held))
        selectionEnded();
    if (state.dragging == button)
        state.dragging.reset();
}

void Session::selectionEnded()
{
    m_state->changed();
    if (!m_state->selecting.isDrawing())
        m_state->paintTexture();
}

void Session::wheel(double steps, CPoint at)
{
    if (m_state->selecting.wheel(steps))
        m_state->changed();
    else
        m_state->zoomTo(steps, at);
}

bool Session::key(Key key, Modifiers held)
{
    State& state = *m_state;
    hold(held);
    if (state.selecting.key(key, held)) {
        if (key == Key::Enter)
            selectionEnded();
        state.changed();
        return true;
    }
    if (key == Key::F12)
        return savePicture(freePictureName()), true;
    if (key == Key::Enter)
        return fit(), true;
    if (key == Key::Backspace && tool() == Tool::Measure && !state.picked.empty()) {
        state.picked.pop_back();
        state.changed();
        return true;
    }
    if (key == Key::Escape) {
        if (state.picked.empty())
            selectNone();
        state.picked.clear();
        state.changed();
        return true;
    }
    if (key == Key('9'))
        return state.camera.lookFromOpposite(), state.lookedElsewhere(), true;
    return held.control ? act(kControlActions, key, *this) : act(kActions, key, *this);
}

} // namespace vqview
