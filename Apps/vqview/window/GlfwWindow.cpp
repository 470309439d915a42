// SPDX-License-Identifier: MIT
#include "vqview/window/GlfwWindow.h"

namespace vqview {

namespace {

constexpr const char* kName = "vqview";
constexpr int kSamples = 4;
constexpr int kLeastWidth = 480, kLeastHeight = 320; // below that the tool bar would leave no view

std::string lastError()
{
    const char* description = nullptr;
    glfwGetError(&description);
    return description ? description : "unknown error";
}

GLFWwindow* create(const WindowOptions& options, int samples)
{
    glfwDefaultWindowHints();
    glfwWindowHint(GLFW_CONTEXT_VERSION_MAJOR, 1); // any version that still has what 1.1 had
    glfwWindowHint(GLFW_CONTEXT_VERSION_MINOR, 1);
    glfwWindowHint(GLFW_DEPTH_BITS, 24);
    glfwWindowHint(GLFW_SAMPLES, samples);
    glfwWindowHint(GLFW_SCALE_TO_MONITOR, GLFW_TRUE);
    return glfwCreateWindow(options.width, options.height, kName, nullptr, nullptr);
}

} // namespace

std::unique_ptr<GlfwWindow> GlfwWindow::open(const WindowOptions& options, std::string& reason)
{
    if (!glfwInit()) {
        reason = "no display: " + lastError();
        return nullptr;
    }
    GLFWwindow* handle = create(options, kSamples);
    if (!handle)
        handle = create(options, 0);
    if (!handle) {
        reason = "no window with OpenGL: " + lastError();
        glfwTerminate();
        return nullptr;
    }
    glfwSetWindowSizeLimits(handle, kLeastWidth, kLeastHeight, GLFW_DONT_CARE, GLFW_DONT_CARE);
    glfwMakeContextCurrent(handle);
    glfwSwapInterval(1);
    return std::unique_ptr<GlfwWindow>(new GlfwWindow(handle));
}

GlfwWindow::~GlfwWindow()
{
    glfwDestroyWindow(m_handle);
    glfwTerminate();
}

void GlfwWindow::measure(Layout& layout) const
{
    int width = 0, height = 0, unitsX = 0, unitsY = 0;
    glfwGetFramebufferSize(m_handle, &width, &height);
    glfwGetWindowSize(m_handle, &unitsX, &unitsY);
    if (width <= 0 || height <= 0 || unitsX <= 0 || unitsY <= 0)
        return; // minimised: nothing is drawn
    layout.width = width;
    layout.height = height;
    layout.pixelsPerUnitX = static_cast<float>(width) / static_cast<float>(unitsX);
    layout.pixelsPerUnitY = static_cast<float>(height) / static_cast<float>(unitsY);
    float scaleX = 1, scaleY = 1;
    glfwGetWindowContentScale(m_handle, &scaleX, &scaleY);
    layout.scale = scaleY > 0 ? scaleY : 1;
}

void GlfwWindow::setTitle(const std::string& title)
{
    if (title == m_title)
        return;
    m_title = title;
    glfwSetWindowTitle(m_handle, title.empty() ? kName : (title + " - " + kName).c_str());
}

} // namespace vqview
