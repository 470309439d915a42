// SPDX-License-Identifier: MIT
#pragma once

#include "vqview/window/Layout.h"
#include "vqview/window/Window.h"

#include <GLFW/glfw3.h>

#include <memory>
#include <string>

namespace vqview {

/// A window whose OpenGL context is current while it lives, one at a time.
class GlfwWindow
{
public:
    /// Null without a display or OpenGL; `reason` says which, for a user.
    static std::unique_ptr<GlfwWindow> open(const WindowOptions& options, std::string& reason);
    ~GlfwWindow();
    GlfwWindow(const GlfwWindow&) = delete;
    GlfwWindow& operator=(const GlfwWindow&) = delete;

    GLFWwindow* handle() const { return m_handle; }
    /// Sizes and scales as they are now; what stands in the window stays.
    void measure(Layout& layout) const;
    void setTitle(const std::string& title);

private:
    explicit GlfwWindow(GLFWwindow* handle) : m_handle(handle) {}

    GLFWwindow* m_handle;
    std::string m_title;
};

} // namespace vqview
