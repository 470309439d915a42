// SPDX-License-Identifier: MIT
#pragma once

#include <VQDraw/VQDraw.h>

#include <memory>
#include <string>

/// OpenGL that draws into a picture of its own, with alpha and depth, and shows no window: by EGL without a display,
/// on Windows by the framebuffer of a window that stays hidden.
///
/// It is current on its thread from its making until it goes, one at a time. The viewport is the whole picture; all
/// other state is as OpenGL begins.
class OffScreenContext
{
public:
    /// Sizes are in pixels, from 1 on. `samples` of each pixel smooth edges, where the system can do that: 0 is none.
    /// @return null where there is no OpenGL; `reason` says what failed.
    static std::unique_ptr<OffScreenContext> make(int width, int height, std::string& reason, int samples = 0);

    virtual ~OffScreenContext() = default;
    OffScreenContext(const OffScreenContext&) = delete;
    OffScreenContext& operator=(const OffScreenContext&) = delete;

    int width() const { return m_width; }
    int height() const { return m_height; }

    /// Makes `image` what has been drawn: of the same size, and opaque throughout, since what blending leaves in the
    /// alpha of OpenGL's picture is no transparency.
    void copyTo(CVQDIB& image) const;

protected:
    OffScreenContext(int width, int height) : m_width(width), m_height(height) {}

private:
    int m_width, m_height;
};
