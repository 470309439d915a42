// SPDX-License-Identifier: MIT
#include "support/offscreen/OffScreenContext.h"

#include <GL/glext.h>

#include <cstring>

namespace {

std::string failureOf(const char* call)
{
    return std::string(call) + " failed with error " + std::to_string(GetLastError());
}

/// What OpenGL 3.0 offers and the system's import library does not.
struct FramebufferCalls
{
    PFNGLGENFRAMEBUFFERSPROC genFramebuffers;
    PFNGLBINDFRAMEBUFFERPROC bindFramebuffer;
    PFNGLDELETEFRAMEBUFFERSPROC deleteFramebuffers;
    PFNGLGENRENDERBUFFERSPROC genRenderbuffers;
    PFNGLBINDRENDERBUFFERPROC bindRenderbuffer;
    PFNGLRENDERBUFFERSTORAGEPROC renderbufferStorage;
    PFNGLFRAMEBUFFERRENDERBUFFERPROC framebufferRenderbuffer;
    PFNGLDELETERENDERBUFFERSPROC deleteRenderbuffers;
    PFNGLCHECKFRAMEBUFFERSTATUSPROC checkFramebufferStatus;

    /// @return false where the driver has none.
    bool load()
    {
        return find(genFramebuffers, "glGenFramebuffers") && find(bindFramebuffer, "glBindFramebuffer") &&
               find(deleteFramebuffers, "glDeleteFramebuffers") && find(genRenderbuffers, "glGenRenderbuffers") &&
               find(bindRenderbuffer, "glBindRenderbuffer") && find(renderbufferStorage, "glRenderbufferStorage") &&
               find(framebufferRenderbuffer, "glFramebufferRenderbuffer") &&
               find(deleteRenderbuffers, "glDeleteRenderbuffers") &&
               find(checkFramebufferStatus, "glCheckFramebufferStatus");
    }

private:
    template <typename Call>
    static bool find(Call& call, const char* name)
    {
        const PROC address = wglGetProcAddress(name);
        static_assert(sizeof call == sizeof address);
        std::memcpy(&call, &address, sizeof call);
        return call != nullptr;
    }
};

/// The context of a window that is never shown. A hidden window's own pixels are nobody's, so that a framebuffer object
/// takes their place.
class WglContext : public OffScreenContext
{
public:
    WglContext(int width, int height) : OffScreenContext(width, height) {}
    ~WglContext() override
    {
        if (m_framebuffer != 0) {
            m_calls.deleteFramebuffers(1, &m_framebuffer);
            m_calls.deleteRenderbuffers(kBuffers, m_buffers);
        }
        if (m_context) {
            wglMakeCurrent(nullptr, nullptr);
            wglDeleteContext(m_context);
        }
        if (m_window) {
            ReleaseDC(m_window, m_deviceContext);
            DestroyWindow(m_window);
        }
    }

    /// Empty, or what failed.
    std::string open()
    {
        m_window = CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
        if (!m_window)
            return failureOf("CreateWindowExW");
        m_deviceContext = GetDC(m_window);
        PIXELFORMATDESCRIPTOR format{};
        format.nSize = sizeof format;
        format.nVersion = 1;
        format.dwFlags = PFD_DRAW_TO_WINDOW | PFD_SUPPORT_OPENGL | PFD_DOUBLEBUFFER_DONTCARE;
        format.iPixelType = PFD_TYPE_RGBA;
        format.cColorBits = 32;
        const int index = ChoosePixelFormat(m_deviceContext, &format);
        if (index == 0 || !SetPixelFormat(m_deviceContext, index, &format))
            return failureOf("SetPixelFormat");
        m_context = wglCreateContext(m_deviceContext);
        if (!m_context)
            return failureOf("wglCreateContext");
        if (!wglMakeCurrent(m_deviceContext, m_context))
            return failureOf("wglMakeCurrent");
        if (!m_calls.load())
            return "this OpenGL has no framebuffer objects";
        return makeFramebuffer() ? std::string() : "the framebuffer object is not complete";
    }

private:
    static constexpr int kBuffers = 2;

    bool makeFramebuffer()
    {
        m_calls.genFramebuffers(1, &m_framebuffer);
        m_calls.bindFramebuffer(GL_FRAMEBUFFER, m_framebuffer);
        m_calls.genRenderbuffers(kBuffers, m_buffers);
        attach(m_buffers[0], GL_RGBA8, GL_COLOR_ATTACHMENT0);
        attach(m_buffers[1], GL_DEPTH_COMPONENT24, GL_DEPTH_ATTACHMENT);
        glViewport(0, 0, width(), height()); // it began as the window's
        glScissor(0, 0, width(), height());
        return m_calls.checkFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE;
    }

    void attach(GLuint buffer, GLenum format, GLenum place)
    {
        m_calls.bindRenderbuffer(GL_RENDERBUFFER, buffer);
        m_calls.renderbufferStorage(GL_RENDERBUFFER, format, width(), height());
        m_calls.framebufferRenderbuffer(GL_FRAMEBUFFER, place, GL_RENDERBUFFER, buffer);
    }

    HWND m_window = nullptr;
    HDC m_deviceContext = nullptr;
    HGLRC m_context = nullptr;
    FramebufferCalls m_calls{};
    GLuint m_framebuffer = 0;
    GLuint m_buffers[kBuffers]{};
};

} // namespace

std::unique_ptr<OffScreenContext> OffScreenContext::make(int width, int height, std::string& reason, int)
{
    auto context = std::make_unique<WglContext>(width, height);
    reason = context->open();
    return reason.empty() ? std::move(context) : nullptr;
}
