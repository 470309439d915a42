// SPDX-License-Identifier: MIT
#pragma once

#include "vqview/session/Input.h"
#include "vqview/window/GlfwWindow.h"

#include <bitset>

namespace vqview {

class Session;

/// Hands the window's events to the session, unless they are the panel's. To be made before Dear ImGui takes hold of
/// the window, which then calls what it finds there.
class Events
{
public:
    /// All three are used for as long as the window lives.
    Events(const GlfwWindow& window, const Layout& layout, Session& session);
    Events(const Events&) = delete;
    Events& operator=(const Events&) = delete;

    /// Whether anything has happened since it was asked last.
    bool take();

private:
    template <auto Member, typename... Arguments>
    static void forward(GLFWwindow* window, Arguments... arguments);

    void mouseButton(int button, int action, int modifiers);
    void cursor(double x, double y);
    void scroll(double x, double y);
    void key(int key, int scanCode, int action, int modifiers);
    void drop(int count, const char** paths);
    void happened();
    void happenedWith(int);
    void resized(int, int);
    void rescaled(float, float);

    Modifiers held() const;
    bool isForView(CPoint at) const;

    GLFWwindow* m_window;
    const Layout& m_layout;
    Session& m_session;
    std::bitset<3> m_pressed; ///< buttons that went down in the view
    Modifiers m_held;
    double m_mouseX = 0, m_mouseY = 0; ///< where it was at the event; GLFW tells where it is by now
    bool m_happened = true;
};

} // namespace vqview
