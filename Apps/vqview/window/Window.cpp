// SPDX-License-Identifier: MIT
#include "vqview/window/Window.h"

#include "vqview/model/Model.h"
#include "vqview/session/Session.h"
#include "vqview/window/Echo.h"
#include "vqview/window/Events.h"
#include "vqview/window/FilePrompt.h"
#include "vqview/window/FontRecord.h"
#include "vqview/window/Panel.h"
#include "vqview/window/Playing.h"
#include "vqview/window/Style.h"
#include "vqview/window/Toolbar.h"

#include <backends/imgui_impl_glfw.h>
#include <backends/imgui_impl_opengl2.h>
#include <imgui.h>

#include <cmath>
#include <iostream>
#include <utility>

namespace vqview {

namespace {

constexpr wchar_t kRegistrySection[] = L"vqview";
constexpr wchar_t kExchangeEntry[] = L"ExchangeCtrlAndShift";
constexpr float kPanelWidth = 420;      // in 1/96 inch
constexpr float kLargestPanel = 0.6f;   // of the window's width
constexpr int kFramesAfterEvent = 3;    // Dear ImGui lays out in one what it learnt in the one before
constexpr double kIdleSeconds = 0.25;   // notices go, and what threads have finished is taken over
constexpr double kActiveSeconds = 0.04; // progress and the text cursor move

/// Dear ImGui in a window, while it lives.
class Interface
{
public:
    explicit Interface(GLFWwindow* window)
    {
        ImGui::CreateContext();
        ImGui::GetIO().IniFilename = nullptr; // nothing stands anywhere else than it always does
        ImGui_ImplGlfw_InitForOpenGL(window, true);
        ImGui_ImplOpenGL2_Init();
    }
    ~Interface()
    {
        ImGui_ImplOpenGL2_Shutdown();
        ImGui_ImplGlfw_Shutdown();
        ImGui::DestroyContext();
    }
    Interface(const Interface&) = delete;
    Interface& operator=(const Interface&) = delete;

    static void begin()
    {
        ImGui_ImplOpenGL2_NewFrame();
        ImGui_ImplGlfw_NewFrame();
        ImGui::NewFrame();
    }

    static void draw()
    {
        glPushClientAttrib(GL_CLIENT_VERTEX_ARRAY_BIT); // it leaves arrays of its own behind
        ImGui_ImplOpenGL2_RenderDrawData(ImGui::GetDrawData());
        glPopClientAttrib();
    }
};

/// The window at work: what it shows, frame by frame.
class Host
{
public:
    Host(GlfwWindow& window, Session& session, const WindowOptions& options)
        : m_window(window), m_session(session), m_echoes(options.echo), m_script(options.script),
          m_events(window, m_layout, session), m_interface(window.handle()),
          m_exchanges(CVQRegistry::GetProfileINT(kRegistrySection, kExchangeEntry, 0) != 0)
    {
        session.setExchangesKeys(m_exchanges);
    }

    void run()
    {
        while (!glfwWindowShouldClose(m_window.handle())) {
            wait();
            m_session.poll();
            if (m_events.take())
                m_framesDue = kFramesAfterEvent;
            else if (isActive())
                m_framesDue = std::max(m_framesDue, 1);
            if (m_framesDue > 0 || m_session.wantsFrame())
                drawFrame();
            if (!m_script.empty() && m_framesDue == 0 && !m_session.isLoading())
                playScript(m_session, std::exchange(m_script, {}));
        }
    }

private:
    bool isActive() const { return m_session.isLoading() || ImGui::GetIO().WantTextInput; }

    void wait() const
    {
        if (m_framesDue > 0 || m_session.wantsFrame())
            glfwPollEvents();
        else
            glfwWaitEventsTimeout(isActive() ? kActiveSeconds : kIdleSeconds);
    }

    void drawFrame()
    {
        m_framesDue = std::max(m_framesDue - 1, 0);
        followWindow();
        m_style.follow(m_layout);
        Interface::begin();
        drawInterface();
        ImGui::Render();
        m_session.setSize(m_layout.viewWidth(), m_layout.viewHeight(), m_layout.scale);
        m_session.draw();
        Interface::draw();
        glfwSwapBuffers(m_window.handle());
        m_window.setTitle(m_session.model() ? m_session.model()->title : std::string());
        if (m_echoes)
            m_echo.follow(m_session);
        keepExchange();
    }

    /// What the keys do is the user's preference, not the document's.
    void keepExchange()
    {
        if (std::exchange(m_exchanges, m_session.exchangesKeys()) != m_session.exchangesKeys())
            CVQRegistry::WriteProfileINT(kRegistrySection, kExchangeEntry, m_exchanges);
    }

    /// A monitor with another scale changes what fonts and the host's own drawing measure.
    void followWindow()
    {
        m_window.measure(m_layout);
        if (CVQDisplayAPI::GetScaleFactor() == m_layout.scale)
            return;
        CVQDisplayAPI::SetScaleFactor(m_layout.scale);
        followScreenResolution();
        m_session.preferencesChanged();
    }

    void drawInterface()
    {
        m_toolbar.draw(m_session, m_prompt, m_showsPanel);
        const ImVec2 display = ImGui::GetIO().DisplaySize;
        const float width = m_showsPanel ? std::min(kPanelWidth * m_style.unit(), kLargestPanel * display.x) : 0;
        if (m_showsPanel)
            m_panel.draw(m_session, m_prompt, display.x - width, m_toolbar.height(), width,
                         display.y - m_toolbar.height());
        m_prompt.draw(m_session);
        m_layout.panelWidth = static_cast<int>(std::lround(width * m_layout.pixelsPerUnitX));
        const auto& [left, top, right, bottom] = m_toolbar.elsewhere();
        m_layout.covered = {m_layout.toView(left, top), m_layout.toView(right, bottom)};
        m_layout.barHeight = static_cast<int>(std::lround(m_toolbar.height() * m_layout.pixelsPerUnitY));
    }

    GlfwWindow& m_window;
    Session& m_session;
    bool m_echoes;
    std::filesystem::path m_script; // yet to be played
    Layout m_layout;
    Events m_events; // before the interface, which calls it
    Interface m_interface;
    Style m_style;
    Toolbar m_toolbar;
    Panel m_panel;
    FilePrompt m_prompt;
    Echo m_echo;
    bool m_showsPanel = false;
    bool m_exchanges; // Ctrl and Shift, as the registry has it
    int m_framesDue = kFramesAfterEvent;
};

} // namespace

int showWindow(Session& session, const WindowOptions& options)
{
    std::string reason;
    const auto window = GlfwWindow::open(options, reason);
    if (!window) {
        std::cerr << "vqview: " << reason << '\n';
        return 1;
    }
    if (!options.model.empty())
        session.open(options.model);
    Host(*window, session, options).run();
    session.releaseGraphics();
    return 0;
}

} // namespace vqview
