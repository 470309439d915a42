// SPDX-License-Identifier: MIT
#include "support/offscreen/OffScreenContext.h"

#include <EGL/egl.h>
#include <EGL/eglext.h>

#include <cstdio>

namespace {

std::string failureOf(const char* call)
{
    char text[80];
    std::snprintf(text, sizeof text, "%s failed with error 0x%04X", call, static_cast<unsigned>(eglGetError()));
    return text;
}

/// Without a display, by EGL's platform of that name, drawing into a pixel buffer.
///
/// EGL's display, one for the whole process, is never terminated: that would unload the driver, which leaves behind
/// what its own variables point to and starts anew, slowly, with the next context.
class EglContext : public OffScreenContext
{
public:
    EglContext(int width, int height) : OffScreenContext(width, height) {}
    ~EglContext() override
    {
        if (!m_display)
            return;
        eglMakeCurrent(m_display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
        if (m_context)
            eglDestroyContext(m_display, m_context);
        if (m_surface)
            eglDestroySurface(m_display, m_surface);
        eglReleaseThread();
    }

    /// Empty, or what failed.
    std::string open(int samples)
    {
        m_display = eglGetPlatformDisplay(EGL_PLATFORM_SURFACELESS_MESA, EGL_DEFAULT_DISPLAY, nullptr);
        if (!m_display)
            return failureOf("eglGetPlatformDisplay(EGL_PLATFORM_SURFACELESS_MESA)");
        if (!eglInitialize(m_display, nullptr, nullptr))
            return failureOf("eglInitialize");
        if (!eglBindAPI(EGL_OPENGL_API))
            return failureOf("eglBindAPI(EGL_OPENGL_API)");

        EGLConfig config{};
        if (!choose(config, samples) && !choose(config, 0))
            return failureOf("eglChooseConfig");
        const EGLint size[]{EGL_WIDTH, width(), EGL_HEIGHT, height(), EGL_NONE};
        m_surface = eglCreatePbufferSurface(m_display, config, size);
        if (!m_surface)
            return failureOf("eglCreatePbufferSurface");
        m_context = eglCreateContext(m_display, config, EGL_NO_CONTEXT, nullptr);
        if (!m_context)
            return failureOf("eglCreateContext");
        return eglMakeCurrent(m_display, m_surface, m_surface, m_context) ? std::string() : failureOf("eglMakeCurrent");
    }

private:
    bool choose(EGLConfig& config, int samples) const
    {
        // clang-format off
        const EGLint format[]{EGL_SURFACE_TYPE, EGL_PBUFFER_BIT, EGL_RENDERABLE_TYPE, EGL_OPENGL_BIT,
                              EGL_RED_SIZE, 8, EGL_GREEN_SIZE, 8, EGL_BLUE_SIZE, 8, EGL_ALPHA_SIZE, 8,
                              EGL_DEPTH_SIZE, 24, EGL_SAMPLE_BUFFERS, samples > 0, EGL_SAMPLES, samples, EGL_NONE};
        // clang-format on
        EGLint found = 0;
        return eglChooseConfig(m_display, format, &config, 1, &found) && found > 0;
    }

    EGLDisplay m_display = EGL_NO_DISPLAY;
    EGLSurface m_surface = EGL_NO_SURFACE;
    EGLContext m_context = EGL_NO_CONTEXT;
};

} // namespace

std::unique_ptr<OffScreenContext> OffScreenContext::make(int width, int height, std::string& reason, int samples)
{
    auto context = std::make_unique<EglContext>(width, height);
    reason = context->open(samples);
    return reason.empty() ? std::move(context) : nullptr;
}
