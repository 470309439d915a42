// SPDX-License-Identifier: MIT
#pragma once

#include "vqview/overlay/VertexValues.h"
#include "vqview/session/Input.h"
#include "vqview/session/Tool.h"

#include <VQDraw/VQDraw.h>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace vqview {

struct Model;

/// What the view shows beside the selection.
struct Shown
{
    bool faces = true;
    bool edges = false;
    bool vertices = false; ///< a cloud's are always shown
    bool labels = true;
    bool report = true; ///< colour bar, histogram and title over the view, points in the colours of their values
    bool keys = false;  ///< the list of keys
};

/// Everything that vqview is, without a window: a scan, how it is looked at, what is selected of it, and what lies over
/// it. A window or a script hands it events and lets it draw.
///
/// Positions are pixels of the framebuffer, y downwards. For one thread, the one on which OpenGL is current.
class Session
{
public:
    Session();
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// @name The frame
    /// @{
    /// The framebuffer's size in pixels, from 1 on, and how many of them a unit of text and lines takes: 1, 1.25, 2 ...
    void setSize(int width, int height, float scale);
    int width() const;
    int height() const;
    /// Draws the whole frame with the current context.
    void draw();
    /// The frame as `draw` makes it, into an image of its size. Of an image that memory is missing for it makes
    /// nothing.
    void drawFrameTo(CVQDIB& image);
    /// The frame as `draw` makes it, but for notice, status line and keys, into an image of its size. Of an image that
    /// memory is missing for it makes nothing.
    void drawTo(CVQDIB& image);
    /// The report: the same with colour bar, histogram and title, whether they are shown or not, and with the shape
    /// that is being drawn.
    void drawReportTo(CVQDIB& image);
    /// Lets go of what lives in the current context; the next frame makes it anew.
    void releaseGraphics();
    /// Whether anything has changed since the last frame, or goes on by itself.
    bool wantsFrame() const;
    /// Takes over what the loading thread has finished, and lets notices go whose time is over. Once a frame.
    void poll();
    using Clock = std::chrono::steady_clock;
    void poll(Clock::time_point now);
    /// @}

    /// @name Events
    /// @{
    void press(Button button, CPoint at, Modifiers held);
    void move(CPoint to, Modifiers held);
    void release(Button button, CPoint at, Modifiers held);
    /// Positive steps go nearer to what is under the mouse.
    void wheel(double steps, CPoint at);
    /// @return false when the key means nothing.
    bool key(Key key, Modifiers held);
    /// A key like Ctrl went down or up: the status line says what it does.
    void hold(Modifiers held);
    /// @}

    /// @name The scan
    /// @{
    /// Reads a scan on a thread of its own; what is shown stays until it is there. A document is opened at
    /// once. A failure becomes a notice.
    void open(const std::filesystem::path& path);
    /// Shows a scan. Nothing of it is selected, and the view fits it.
    void show(std::shared_ptr<const Model> model);
    /// Null before the first.
    std::shared_ptr<const Model> model() const;
    bool isLoading() const;
    /// 0 .. 1.
    double progress() const;
    void cancelLoading();
    /// @}

    /// @name The selection
    /// @{
    Tool tool() const;
    /// What a former tool has begun is dropped.
    void setTool(Tool tool);
    bool selectsThrough() const;
    /// Whether points are selected that others hide.
    void setSelectsThrough(bool through);
    /// Whether Ctrl subtracts and Shift adds, instead of the other way round.
    bool exchangesKeys() const;
    void setExchangesKeys(bool exchanged);
    std::size_t selectedCount() const;
    const std::vector<std::uint32_t>& selected() const; ///< in ascending order
    bool canUndo() const;
    bool canRedo() const;
    void undo();
    void redo();
    void selectAll();
    void selectNone();
    void invertSelection();
    /// Points picked for measuring, in the order of picking.
    const std::vector<std::uint32_t>& picked() const;
    /// @}

    /// @name The view
    /// @{
    Shown& shown();
    void fit();
    bool isOrthographic() const;
    void setOrthographic(bool orthographic);
    void lookAlong(Side side);
    /// What colours the points and is counted in the histogram.
    VertexValue value() const;
    void setValue(VertexValue value);
    /// Matrices and viewport with which the scene is drawn.
    SVQGLVariables variables() const;
    /// @}

    /// @name Files. Each answers whether it worked, and says so in a notice.
    /// @{
    /// The frame as it is drawn, without the notices.
    bool savePicture(const std::filesystem::path& path);
    /// View, labels, colour bar, histogram and title as one PNG.
    bool saveReport(const std::filesystem::path& path);
    /// Preferences, report image, texture and selection in one archive.
    bool saveDocument(const std::filesystem::path& path);
    bool openDocument(const std::filesystem::path& path);
    /// The report that was saved or opened last.
    CVQDIB& reportImage();
    /// The frame as a texture, in which every selection has painted its outline.
    CVQTexture& texture();
    /// @}

    /// @name Texts, UTF-8
    /// @{
    /// Tool, count, and what a held key does.
    std::string statusLine() const;
    /// The line that is shown for a while in the view; empty when there is none.
    std::string notice() const;
    void say(const std::string& notice);
    /// @}

    /// To be called when preferences have changed.
    void preferencesChanged();

private:
    struct State;

    void selectionEnded();
    void read(const std::filesystem::path& path);
    bool keepPicture(CVQDIB& picture, const std::filesystem::path& path);

    std::unique_ptr<State> m_state;
};

} // namespace vqview
