// SPDX-License-Identifier: MIT
#include "vqview/window/Events.h"

#include "vqview/session/Session.h"
#include "vqview/text/Text.h"
#include "vqview/window/Keys.h"
#include "vqview/window/Popups.h"

#include <imgui.h>

#include <array>
#include <system_error>

namespace vqview {

namespace {

struct MouseButton
{
    int number;
    Button button;
};

constexpr std::array<MouseButton, 3> kButtons{{
    {GLFW_MOUSE_BUTTON_LEFT, Button::Left},
    {GLFW_MOUSE_BUTTON_MIDDLE, Button::Middle},
    {GLFW_MOUSE_BUTTON_RIGHT, Button::Right},
}};

} // namespace

template <auto Member, typename... Arguments>
void Events::forward(GLFWwindow* window, Arguments... arguments)
{
    auto* events = static_cast<Events*>(glfwGetWindowUserPointer(window));
    events->m_happened = true;
    (events->*Member)(arguments...);
}

Events::Events(const GlfwWindow& window, const Layout& layout, Session& session)
    : m_window(window.handle()), m_layout(layout), m_session(session)
{
    glfwSetWindowUserPointer(m_window, this);
    glfwSetMouseButtonCallback(m_window, forward<&Events::mouseButton>);
    glfwSetCursorPosCallback(m_window, forward<&Events::cursor>);
    glfwSetScrollCallback(m_window, forward<&Events::scroll>);
    glfwSetKeyCallback(m_window, forward<&Events::key>);
    glfwSetDropCallback(m_window, forward<&Events::drop>);
    glfwSetWindowRefreshCallback(m_window, forward<&Events::happened>);
    glfwSetWindowFocusCallback(m_window, forward<&Events::happenedWith>);
    glfwSetCursorEnterCallback(m_window, forward<&Events::happenedWith>);
    glfwSetFramebufferSizeCallback(m_window, forward<&Events::resized>);
    glfwSetWindowContentScaleCallback(m_window, forward<&Events::rescaled>);
}

bool Events::take()
{
    return std::exchange(m_happened, false);
}

/// The modifiers that come with an event are those before it.
Modifiers Events::held() const
{
    const auto isDown = [this](int key) { return glfwGetKey(m_window, key) == GLFW_PRESS; };
    return {isDown(GLFW_KEY_LEFT_CONTROL) || isDown(GLFW_KEY_RIGHT_CONTROL),
            isDown(GLFW_KEY_LEFT_SHIFT) || isDown(GLFW_KEY_RIGHT_SHIFT)};
}

/// Known without a frame in between, as what Dear ImGui wants of the mouse is not.
bool Events::isForView(CPoint at) const
{
    return m_layout.isInView(at) && !m_layout.covered.PtInRect(at) && !isPopupOpen();
}

void Events::mouseButton(int number, int action, int)
{
    const auto* known = std::ranges::find(kButtons, number, &MouseButton::number);
    if (known == kButtons.end())
        return;
    const auto index = static_cast<std::size_t>(known - kButtons.begin());
    const CPoint at = m_layout.toView(m_mouseX, m_mouseY);
    if (action == GLFW_PRESS && isForView(at)) {
        m_pressed.set(index);
        m_session.press(known->button, at, held());
    } else if (action == GLFW_RELEASE && m_pressed.test(index)) {
        m_pressed.reset(index);
        m_session.release(known->button, at, held());
    }
}

void Events::cursor(double x, double y)
{
    m_mouseX = x;
    m_mouseY = y;
    const CPoint at = m_layout.toView(x, y);
    if (m_pressed.any() || (isForView(at) && !ImGui::GetIO().WantCaptureMouse))
        m_session.move(at, held());
}

void Events::scroll(double, double y)
{
    if (const CPoint at = m_layout.toView(m_mouseX, m_mouseY); isForView(at))
        m_session.wheel(y, at);
}

void Events::key(int key, int scanCode, int action, int)
{
    if (const Modifiers now = held(); now != m_held) {
        m_held = now;
        m_session.hold(now);
    }
    if (action != GLFW_PRESS || ImGui::GetIO().WantCaptureKeyboard || isPopupOpen())
        return;
    const auto known = keyOf(key, scanCode);
    if (known == Key('Q') && m_held.control)
        glfwSetWindowShouldClose(m_window, GLFW_TRUE);
    else if (known)
        m_session.key(*known, m_held);
}

void Events::drop(int count, const char** paths)
{
    for (int i = 0; i < count; ++i) {
        std::error_code ignored; // what cannot be asked is no file
        const std::filesystem::path path = pathOf(paths[i]);
        if (std::filesystem::is_regular_file(path, ignored))
            return m_session.open(path);
    }
    m_session.say("No file was dropped");
}

void Events::happened() {}

void Events::happenedWith(int) {}

void Events::resized(int, int) {}

void Events::rescaled(float, float) {}

} // namespace vqview
